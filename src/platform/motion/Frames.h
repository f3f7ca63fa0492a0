#pragma once

#include <QQuickItem>

namespace tarnwick {

// Adds the view on top of the superview's other children and keeps it as large as the superview.
void addFillingSubview(QQuickItem* superview, QQuickItem* view);
// Keeps the content at the view's left edge and as wide as the view.
void pinToWidth(QQuickItem* content, const QQuickItem* view);
void removeFromSuperview(QQuickItem* view);

}  // namespace tarnwick
