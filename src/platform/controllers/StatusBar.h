#pragma once

#include <QRectF>
#include <algorithm>

namespace tarnwick {

// The frame of the system's status bar over the window, in points: empty, as there is none on
// Linux.
inline QRectF statusBarFrame() {
    return {};
}

// The space that a view leaves for the status bar: its smaller side, which is its height however
// the device is held.
inline double statusBarAdjustment(const QRectF& statusBar, const QRectF& viewInWindow) {
    return statusBar.intersects(viewInWindow) ? std::min(statusBar.width(), statusBar.height()) : 0;
}

}  // namespace tarnwick
