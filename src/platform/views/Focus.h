#pragma once

#include <QQuickWindow>
#include <Qt>

namespace tarnwick {

// With what reason to move the focus in a window: whoever sees where it is goes on seeing it. Main
// thread.
Qt::FocusReason focusReasonIn(const QQuickWindow* window);

}  // namespace tarnwick
