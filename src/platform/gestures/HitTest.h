#pragma once

#include <QPointF>
#include <QQuickItem>

namespace tarnwick {

// A property that keeps touches outside an item's bounds from its children.
inline constexpr const char* boundsTouchesProperty = "boundsTouches";

// The topmost item, the root or one below it, that is visible and enabled at a point of the
// window's content; null if there is none. Main thread.
QQuickItem* hitTest(QQuickItem* root, const QPointF& scenePoint);

}  // namespace tarnwick
