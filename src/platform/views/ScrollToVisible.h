#pragma once

#include <QQuickItem>

namespace tarnwick {

// Scrolls the flicking views that hold the item as little as is needed for it to be seen. Main
// thread.
void scrollToVisible(const QQuickItem* item);

}  // namespace tarnwick
