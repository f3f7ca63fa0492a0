#include "ui/hud/BarProgressView.h"

#include <QPainter>
#include <QPainterPath>

namespace tarnwick {

namespace {

constexpr QSizeF usualSize(120.0, 20.0);
constexpr double lineWidth = 2.0;
constexpr double outlineInset = 2.0;
constexpr double fillInset = 4.0;

QPainterPath capsule(const QRectF& rectangle) {
    QPainterPath path;
    path.addRoundedRect(rectangle, rectangle.height() / 2, rectangle.height() / 2);
    return path;
}

QRectF inset(const QRectF& bounds, double distance) {
    return bounds.adjusted(distance, distance, -distance, -distance);
}

// The part of the inner capsule that is filled when the bar is done up to the amount, in points
// from the left.
QPainterPath filledPart(const QRectF& bounds, double amount) {
    const QRectF inner = inset(bounds, fillInset);
    const double endRadius = inner.height() / 2;
    const QRectF done(0, 0, amount, bounds.height());
    QPainterPath limit;
    if (amount > bounds.width() - endRadius)
        limit = capsule(done.adjusted(0, fillInset, 0, -fillInset));  // cut by an arc
    else
        limit.addRect(done);  // a straight edge, or a part of the left end alone
    return capsule(inner).intersected(limit);
}

}  // namespace

BarProgressView::BarProgressView(QQuickItem* parent) : PaintedView(parent) {
    setSize(usualSize);
    setAntialiasing(true);
}

void BarProgressView::paint(QPainter* painter) {
    painter->setRenderHint(QPainter::Antialiasing);
    painter->setPen(QPen(lineColor_, lineWidth));
    painter->setBrush(progressRemainingColor_);
    painter->drawPath(capsule(inset(boundingRect(), outlineInset)));
    if (progress_ > 0)
        painter->fillPath(filledPart(boundingRect(), progress_ * width()), progressColor_);
}

}  // namespace tarnwick
