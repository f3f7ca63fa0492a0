#pragma once

#include <deque>

#include "platform/gestures/GestureRecognizer.h"

namespace tarnwick {

// A drag in any direction. It begins once the touch has moved further than the drag threshold. Main
// thread.
class PanGestureRecognizer : public GestureRecognizer {
    Q_OBJECT

public:
    using GestureRecognizer::GestureRecognizer;

    // Points of the view, or of the window's content if the view is null. Until the pan begins,
    // measured from where the touch went down; from then on from a point that is nearer by the
    // threshold, so that what is dragged does not jump.
    QPointF translation(const QQuickItem* view) const;
    // Points per second over the last tenth of a second of the events' own time; 0 after a rest of
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
    std::deque<Touch> trail_;  // of the time over which the velocity is measured
};

}  // namespace tarnwick
