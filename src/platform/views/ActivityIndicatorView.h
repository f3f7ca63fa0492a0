#pragma once

#include <QColor>
#include <QVariantAnimation>

#include "platform/views/PaintedView.h"

namespace tarnwick {

// A phone's large activity indicator: twelve spokes, of which the brightest one goes round once per
// second while it can be seen. Main thread.
class ActivityIndicatorView : public PaintedView {
    Q_OBJECT

public:
    explicit ActivityIndicatorView(QQuickItem* parent);

    void setColor(const QColor& color) { change(color_, color); }
    void startAnimating();
    bool isTurning() const { return turn_.state() == QAbstractAnimation::Running; }

    void paint(QPainter* painter) override;

protected:
    void itemChange(ItemChange change, const ItemChangeData& data) override;

private:
    void turnWhileVisible();

    bool isAnimating_ = false;
    QColor color_ = Qt::white;
    QVariantAnimation turn_;
};

}  // namespace tarnwick
