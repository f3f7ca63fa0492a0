#include "ui/hud/BarProgressView.h"

#include <QPainter>
#include <QPainterPath>
#include <algorithm>

#include "ui/hud/ProgressHUDLayout.h"

namespace tarnwick {

namespace {

constexpr QSizeF usualSize(120.0, 20.0);
constexpr double lineWidth = 2.0;
constexpr double outlineInset = 2.0;
constexpr double fillInset = 4.0;

QPainterPath capsule(const QRectF& rectangle) {
    const double endRadius = std::min(rectangle.width(), rectangle.height()) / 2;
    QPainterPath path;
    path.addRoundedRect(rectangle, endRadius, endRadius);
    return path;
}

// Empty if there is no room for it.
QRectF inset(const QRectF& bounds, double distance) {
    const QRectF inner = bounds.adjusted(distance, distance, -distance, -distance);
    return inner.isValid() ? inner : QRectF();
}

// The part of the inner capsule that is filled when the bar is done up to the amount, in points
// from the capsule's left end. In its right end the edge bends until it is the end.
QPainterPath filledPart(const QRectF& inner, double amount) {
    const double endRadius = std::min(inner.width(), inner.height()) / 2;
    const double straight = std::min(amount, inner.width() - endRadius);
    QPainterPath limit;
    limit.setFillRule(Qt::WindingFill);
    limit.addRect(QRectF(inner.topLeft(), QSizeF(straight, inner.height())));
    limit.addEllipse(QPointF(inner.x() + straight, inner.center().y()), amount - straight,
                     endRadius);
    return capsule(inner).intersected(limit);
}

}  // namespace

BarProgressView::BarProgressView(QQuickItem* parent)
    : BarProgressView({QPointF(0, 0), usualSize}, parent) {}

BarProgressView::BarProgressView(const QRectF& frame, QQuickItem* parent) : PaintedView(parent) {
    setPosition(frame.topLeft());
    setSize(frame.size());
    setAntialiasing(true);
}

void BarProgressView::paint(QPainter* painter) {
    painter->setRenderHint(QPainter::Antialiasing);
    painter->setPen(QPen(lineColor_, lineWidth));
    painter->setBrush(progressRemainingColor_);
    painter->drawPath(capsule(inset(boundingRect(), outlineInset)));
    const QRectF inner = inset(boundingRect(), fillInset);
    if (const double share = shareOf(progress_); share > 0)
        painter->fillPath(filledPart(inner, share * inner.width()), progressColor_);
}

}  // namespace tarnwick
