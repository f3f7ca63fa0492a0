#pragma once

#include <QPointer>
#include <QPointerEvent>
#include <QQuickWindow>
#include <functional>
#include <vector>

#include "platform/gestures/GestureRecognizer.h"

namespace tarnwick {

// Decides who gets a touch: the recognisers of the views that it started on, or the items. Both see
// it until a recogniser begins; from then on the items see nothing of it, and their press is
// cancelled. One touch at a time: a second finger, another button or the loss of the window's focus
// ends the gestures. Main thread.
class GestureArbiter {
public:
    // `deliver` passes an event to the items without asking the arbiter.
    GestureArbiter(QQuickWindow* window, std::function<void(QEvent*)> deliver);

    // To be called for every event of the window before the items get it; true keeps it from them.
    bool takes(QEvent* event);

    // Ends the gestures of the current touch, which has no further effect.
    void interrupt();

private:
    using Touch = GestureRecognizer::Touch;
    using Handler = void (GestureRecognizer::*)(const Touch&);

    bool takesPress(QPointerEvent* event);
    bool takesMove(QPointerEvent* event);
    bool takesRelease(QPointerEvent* event);
    void start(QPointerEvent* event);
    void feed(Handler handler, QPointerEvent* event);
    void decide(const QPointer<GestureRecognizer>& recognizer, QPointerEvent* event);
    bool mayBegin(const QPointer<GestureRecognizer>& recognizer, GestureState requested,
                  QPointerEvent* event);
    void failRivalsOf(const QPointer<GestureRecognizer>& recognizer);
    static bool mayRunTogether(const QPointer<GestureRecognizer>& one,
                               const QPointer<GestureRecognizer>& other);
    void takeFromItems(QPointerEvent* event);
    void preventPress(QPointerEvent* event);
    void deliverHeldMoves(const QPointerEvent* event);
    void forget();

    QQuickWindow* window_;
    std::function<void(QEvent*)> deliver_;
    const QInputDevice* device_ = nullptr;  // of the followed touch; only compared
    std::vector<QPointer<GestureRecognizer>> recognizers_;
    QPointF lastPosition_;
    bool taken_ = false;        // the items have lost the touch
    bool refusedDrag_ = false;  // the touch must not end as a press
};

}  // namespace tarnwick
