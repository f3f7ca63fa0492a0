#include "platform/views/Focus.h"

#include <QQuickItem>

namespace tarnwick {

Qt::FocusReason focusReasonIn(const QQuickWindow* window) {
    const QQuickItem* focused = window != nullptr ? window->activeFocusItem() : nullptr;
    const bool isSeen = focused != nullptr && focused->property("visualFocus").toBool();
    return isSeen ? Qt::TabFocusReason : Qt::OtherFocusReason;
}

}  // namespace tarnwick
