#pragma once

#include <QColor>
#include <QQuickPaintedItem>
#include <QRectF>

namespace tarnwick {

// The rounded box of a HUD, and the gradient that darkens what the HUD covers. It is as large as
// the HUD; its values count from the next drawing. Main thread.
class ProgressHUDBox : public QQuickPaintedItem {
    Q_OBJECT

public:
    explicit ProgressHUDBox(QQuickItem* hud) : QQuickPaintedItem(hud) {}

    void paint(QPainter* painter) override;

    QRectF frame;
    QColor color;  // invalid: black, as opaque as `fillOpacity`
    double fillOpacity = 0.8;
    double cornerRadius = 10.0;
    bool dimBackground = false;
};

}  // namespace tarnwick
