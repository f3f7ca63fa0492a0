#pragma once

#include <QQuickItem>

namespace tarnwick {

// Puts the view into the other one, on top, with its whole bounds, and keeps it so.
void addFillingSubview(QQuickItem* superview, QQuickItem* view);
// Keeps the content at the view's left edge and as wide as it.
void pinToWidth(QQuickItem* content, const QQuickItem* view);
void removeFromSuperview(QQuickItem* view);

}  // namespace tarnwick
