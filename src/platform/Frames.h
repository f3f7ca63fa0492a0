#pragma once

#include <QQuickItem>

namespace tarnwick {

// Puts the view into the other one, on top, with its whole bounds, and keeps it so.
void addFillingSubview(QQuickItem* superview, QQuickItem* view);
void removeFromSuperview(QQuickItem* view);

}  // namespace tarnwick
