#include "platform/views/ScrollToVisible.h"

#include <algorithm>

namespace tarnwick {

namespace {

constexpr double margin = 16.0;  // points that stay free above and below the item

void scroll(QQuickItem* flickable, const QQuickItem* item) {
    auto* content = flickable->property("contentItem").value<QQuickItem*>();
    const QRectF frame = item->mapRectToItem(content, item->boundingRect());
    const double top = flickable->property("contentY").toDouble();
    const double highest = flickable->property("contentHeight").toDouble() - flickable->height();
    double wanted = std::min(top, frame.top() - margin);
    wanted = std::max(wanted, frame.bottom() + margin - flickable->height());
    if (wanted != top)
        flickable->setProperty("contentY", std::clamp(wanted, 0.0, std::max(highest, 0.0)));
}

}  // namespace

void scrollToVisible(const QQuickItem* item) {
    for (QQuickItem* parent = item->parentItem(); parent != nullptr; parent = parent->parentItem())
        if (parent->inherits("QQuickFlickable"))
            scroll(parent, item);
}

}  // namespace tarnwick
