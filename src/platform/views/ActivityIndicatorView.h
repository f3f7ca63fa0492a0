#pragma once

#include <QColor>
#include <QVariantAnimation>

#include "platform/views/PaintedView.h"

namespace tarnwick {

// A phone's large activity indicator: twelve spokes, of which the brightest one goes round once per
// second. Main thread.
class ActivityIndicatorView : public PaintedView {
    Q_OBJECT

public:
    explicit ActivityIndicatorView(QQuickItem* parent);

    void setColor(const QColor& color) { change(color_, color); }
    void startAnimating();

    void paint(QPainter* painter) override;

private:
    QColor color_ = Qt::white;
    QVariantAnimation turn_;
};

}  // namespace tarnwick
