#include "platform/gestures/PanGestureRecognizer.h"

#include <cmath>

namespace tarnwick {

namespace {

constexpr qint64 velocityTime = 100;  // milliseconds

QPointF vectorIn(const QQuickItem* view, const QPointF& vector) {
    return view != nullptr ? view->mapFromScene(vector) - view->mapFromScene({0, 0}) : vector;
}

}  // namespace

QPointF PanGestureRecognizer::translation(const QQuickItem* view) const {
    return vectorIn(view, wayFromStart() - (isPossible() ? QPointF() : origin_));
}

QPointF PanGestureRecognizer::velocity(const QQuickItem* view) const {
    return vectorIn(view, velocityInScene());
}

void PanGestureRecognizer::touchBegan(const Touch& touch) {
    origin_ = {};
    trail_.clear();
    follow(touch);
}

void PanGestureRecognizer::touchMoved(const Touch& touch) {
    follow(touch);
    if (isActive()) {
        change();
    } else if (isDrag(wayFromStart())) {
        const QPointF way = wayFromStart();
        origin_ = way * (dragThreshold() / std::hypot(way.x(), way.y()));
        begin();
    }
}

void PanGestureRecognizer::touchEnded(const Touch& touch) {
    follow(touch);
    if (isActive())
        end();
    else
        fail();
}

void PanGestureRecognizer::follow(const Touch& touch) {
    trail_.push_back(touch);
    while (trail_.size() > 1 && trail_[1].milliseconds <= touch.milliseconds - velocityTime)
        trail_.pop_front();
}

QPointF PanGestureRecognizer::velocityInScene() const {
    if (trail_.size() < 2 || trail_.back().milliseconds <= trail_.front().milliseconds)
        return {};
    const Touch& now = trail_.back();
    Touch from = trail_.front();
    if (const qint64 early = now.milliseconds - velocityTime - from.milliseconds; early > 0) {
        // Events come irregularly; between two of them the touch is assumed to move evenly.
        const Touch& next = trail_[1];
        const double part =
            static_cast<double>(early) / static_cast<double>(next.milliseconds - from.milliseconds);
        from.position += (next.position - from.position) * part;
        from.milliseconds += early;
    }
    return (now.position - from.position) * 1000.0 /
           static_cast<double>(now.milliseconds - from.milliseconds);
}

}  // namespace tarnwick
