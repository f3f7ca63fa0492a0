#pragma once

#include <QColor>
#include <QQuickPaintedItem>
#include <QVariantAnimation>

namespace tarnwick {

// A phone's large activity indicator: twelve spokes, of which the brightest goes round once a
// second. Main thread.
class ActivityIndicatorView : public QQuickPaintedItem {
    Q_OBJECT

public:
    explicit ActivityIndicatorView(QQuickItem* parent);

    void setColor(const QColor& color);
    void startAnimating();

    void paint(QPainter* painter) override;

private:
    QColor color_ = Qt::white;
    QVariantAnimation turn_;
};

}  // namespace tarnwick
