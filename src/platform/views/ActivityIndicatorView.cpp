#include "platform/views/ActivityIndicatorView.h"

#include <QPainter>
#include <algorithm>

namespace tarnwick {

namespace {

constexpr int spokes = 12;
constexpr double extent = 37.0;        // points, each way
constexpr double spokeWidth = 3.4;     // points
constexpr double innerRadius = 8.5;    // points
constexpr double outerRadius = 16.5;   // points
constexpr double dimmestAlpha = 0.22;  // of the spoke that was brightest longest ago
constexpr int turnDuration = 1000;     // milliseconds

// The brightness of a spoke while another one is the brightest: spokes fade in the order in which
// they were lit.
double alphaOf(int spoke, int brightest) {
    const int age = (brightest - spoke + spokes) % spokes;
    return std::max(dimmestAlpha, 1.0 - age * (1.0 - dimmestAlpha) * 2.0 / spokes);
}

}  // namespace

ActivityIndicatorView::ActivityIndicatorView(QQuickItem* parent) : PaintedView(parent) {
    setSize({extent, extent});
    setAntialiasing(true);
    turn_.setStartValue(0);
    turn_.setEndValue(spokes);
    turn_.setDuration(turnDuration);
    turn_.setLoopCount(-1);
    // Redraws twelve times per second, whatever the frame rate is.
    connect(&turn_, &QVariantAnimation::valueChanged, this, [this] { update(); });
}

void ActivityIndicatorView::startAnimating() {
    isAnimating_ = true;
    turnWhileVisible();
}

void ActivityIndicatorView::turnWhileVisible() {
    if (isAnimating_ && isVisible())
        turn_.start();
    else
        turn_.stop();
}

void ActivityIndicatorView::itemChange(ItemChange change, const ItemChangeData& data) {
    if (change == ItemVisibleHasChanged)
        turnWhileVisible();
    PaintedView::itemChange(change, data);
}

void ActivityIndicatorView::paint(QPainter* painter) {
    const int brightest = turn_.currentValue().toInt() % spokes;
    painter->setRenderHint(QPainter::Antialiasing);
    painter->translate(boundingRect().center());
    for (int spoke = 0; spoke < spokes; ++spoke) {
        QColor color = color_;
        color.setAlphaF(static_cast<float>(color_.alphaF() * alphaOf(spoke, brightest)));
        painter->setPen(QPen(color, spokeWidth, Qt::SolidLine, Qt::RoundCap));
        painter->drawLine(QPointF(0, -innerRadius), QPointF(0, -outerRadius + spokeWidth / 2));
        painter->rotate(360.0 / spokes);
    }
}

}  // namespace tarnwick
