#pragma once

#include <QRectF>
#include <algorithm>

namespace tarnwick {

// The frame of the system's status bar over the window, in points: empty, as Linux draws none
// there.
inline QRectF statusBarFrame() {
    return {};
}

// The height by which a view has to make room for the status bar; the bar's smaller side is its
// height, whichever way the device is held.
inline double statusBarAdjustment(const QRectF& statusBar, const QRectF& viewInWindow) {
    return statusBar.intersects(viewInWindow) ? std::min(statusBar.width(), statusBar.height()) : 0;
}

}  // namespace tarnwick
