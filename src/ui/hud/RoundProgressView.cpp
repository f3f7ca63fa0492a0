#include "ui/hud/RoundProgressView.h"

#include <QPainter>
#include <cmath>

namespace tarnwick {

namespace {

constexpr double extent = 37.0;  // points, each way
constexpr double lineWidth = 2.0;

// Qt counts sixteenths of a degree against the clock from three o'clock; the indicators go with it
// from twelve.
constexpr int twelveOClock = 90 * 16;
constexpr int fullTurn = 360 * 16;

int turned(double progress) {
    return -static_cast<int>(std::lround(progress * fullTurn));
}

QRectF around(const QPointF& centre, double radius) {
    return {centre.x() - radius, centre.y() - radius, 2 * radius, 2 * radius};
}

}  // namespace

RoundProgressView::RoundProgressView(QQuickItem* parent) : PaintedView(parent) {
    setSize({extent, extent});
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
