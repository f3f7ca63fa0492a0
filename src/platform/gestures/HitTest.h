#pragma once

#include <QPointF>
#include <QQuickItem>

namespace tarnwick {

// Named on an item whose children get no touch where the item itself has none.
inline constexpr const char* boundsTouchesProperty = "boundsTouches";

// The topmost item below a root, or the root itself, that shows and is enabled at a point of the
// window's content; nullptr if there is none. Main thread.
QQuickItem* hitTest(QQuickItem* root, const QPointF& scenePoint);

}  // namespace tarnwick
