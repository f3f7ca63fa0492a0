#include "ui/reveal/RevealViewControllerPanGestureRecognizer.h"

#include <cmath>

namespace tarnwick {

namespace {

constexpr double lockDistance = 5.0;  // points, after which the direction is settled

}  // namespace

void RevealViewControllerPanGestureRecognizer::touchBegan(const Touch& touch) {
    dragging_ = false;
    PanGestureRecognizer::touchBegan(touch);
}

void RevealViewControllerPanGestureRecognizer::touchMoved(const Touch& touch) {
    const QPointF way = wayFromStart();
    if (!dragging_ && std::abs(way.x()) > lockDistance)
        dragging_ = true;
    if (dragging_ || std::abs(way.y()) <= lockDistance)
        PanGestureRecognizer::touchMoved(touch);
    else
        fail();
}

}  // namespace tarnwick
