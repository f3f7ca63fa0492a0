#include "ui/hud/RoundProgressView.h"

#include <QPainter>
#include <algorithm>
#include <cmath>

#include "ui/hud/ProgressHUDLayout.h"

namespace tarnwick {

namespace {

constexpr double extent = 37.0;  // points, each way
constexpr double lineWidth = 2.0;

// Qt counts sixteenths of a degree against the clock from three o'clock; the indicators go with it
// from twelve.
constexpr int twelveOClock = 90 * 16;
constexpr int fullTurn = 360 * 16;

int turned(double progress) {
    return -static_cast<int>(std::lround(shareOf(progress) * fullTurn));
}

// Nothing if the radius is negative, as in a view that is narrower than its lines.
QRectF around(const QPointF& centre, double radius) {
    const double half = std::max(radius, 0.0);
    return {centre.x() - half, centre.y() - half, 2 * half, 2 * half};
}

}  // namespace

RoundProgressView::RoundProgressView(QQuickItem* parent)
    : RoundProgressView({0, 0, extent, extent}, parent) {}

RoundProgressView::RoundProgressView(const QRectF& frame, QQuickItem* parent)
    : PaintedView(parent) {
    setPosition(frame.topLeft());
    setSize(frame.size());
    setAntialiasing(true);
}

void RoundProgressView::paint(QPainter* painter) {
    painter->setRenderHint(QPainter::Antialiasing);
    if (annular_)
        paintRing(*painter);
    else
        paintPie(*painter);
}

void RoundProgressView::paintRing(QPainter& painter) const {
    const QRectF circle = around(boundingRect().center(), (width() - lineWidth) / 2);
    painter.setPen(QPen(backgroundTintColor_, lineWidth, Qt::SolidLine, Qt::FlatCap));
    painter.drawArc(circle, twelveOClock, -fullTurn);
    painter.setPen(QPen(progressTintColor_, lineWidth, Qt::SolidLine, Qt::SquareCap));
    painter.drawArc(circle, twelveOClock, turned(progress_));
}

void RoundProgressView::paintPie(QPainter& painter) const {
    const double inset = 2.0;
    painter.setPen(QPen(progressTintColor_, lineWidth));
    painter.setBrush(backgroundTintColor_);
    painter.drawEllipse(boundingRect().adjusted(inset, inset, -inset, -inset));
    // White whatever the tint is.
    painter.setPen(Qt::NoPen);
    painter.setBrush(Qt::white);
    painter.drawPie(around(boundingRect().center(), (width() - 2 * inset) / 2), twelveOClock,
                    turned(progress_));
}

}  // namespace tarnwick
