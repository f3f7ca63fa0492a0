#pragma once

#include <QPointer>
#include <QPointerEvent>
#include <QQuickWindow>
#include <functional>
#include <vector>

#include "platform/gestures/GestureRecognizer.h"

namespace tarnwick {

// Decides whose a touch is: the recognisers' of the views that it went down on, or the items'. Both
// see it until a recogniser begins; from then on the items see nothing of it, and lose what they
// had pressed. One touch at a time: a second finger, another button or the loss of the window's
// focus ends the gestures. Main thread.
class GestureArbiter {
public:
    // Events that the items shall have without the arbiter being asked go to the function.
    GestureArbiter(QQuickWindow* window, std::function<void(QEvent*)> deliver);

    // For every event of the window, before the items have it; yes means that they shall not.
    bool takes(QEvent* event);

    // Ends the gestures of the touch that goes on; nothing more comes of it until all is up.
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
    bool mayBegin(const QPointer<GestureRecognizer>& recognizer, GestureState wish,
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
    const QInputDevice* device_ = nullptr;  // of the touch that is followed, compared only
    std::vector<QPointer<GestureRecognizer>> recognizers_;
    QPointF lastPosition_;
    bool taken_ = false;        // the items have lost the touch
    bool refusedDrag_ = false;  // it must not end as a press
};

}  // namespace tarnwick
