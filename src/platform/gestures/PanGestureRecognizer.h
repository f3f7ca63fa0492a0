#pragma once

#include <deque>

#include "platform/gestures/GestureRecognizer.h"

namespace tarnwick {

// A drag in any direction. It begins once the touch has left the place where it went down by more
// than the drag threshold. Main thread.
class PanGestureRecognizer : public GestureRecognizer {
    Q_OBJECT

public:
    using GestureRecognizer::GestureRecognizer;

    // Points of the view, or of the window's content if there is no view. Until it begins, from
    // where the touch went down; from then on from a place that is the threshold nearer, so that
    // what is dragged does not jump.
    QPointF translation(const QQuickItem* view) const;
    // Points a second over the last tenth of a second of the events' own time; 0 after a rest of
    // that length.
    QPointF velocity(const QQuickItem* view) const;

protected:
    void touchBegan(const Touch& touch) override;
    void touchMoved(const Touch& touch) override;
    void touchEnded(const Touch& touch) override;

private:
    void follow(const Touch& touch);
    QPointF velocityInScene() const;

    QPointF origin_;
    std::deque<Touch> trail_;  // reaches back to the start of the time that the velocity is of
};

}  // namespace tarnwick
