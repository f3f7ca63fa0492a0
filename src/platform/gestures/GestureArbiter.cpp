#include "platform/gestures/GestureArbiter.h"

#include <QMouseEvent>
#include <QTouchEvent>
#include <algorithm>
#include <utility>

#include "platform/gestures/HitTest.h"

namespace tarnwick {

namespace {

const QMouseEvent* asMouse(const QPointerEvent* event) {
    return event->isSinglePointEvent() ? static_cast<const QMouseEvent*>(event) : nullptr;
}

// One finger, or only the left button.
bool isSimple(const QPointerEvent* event) {
    const QMouseEvent* mouse = asMouse(event);
    return mouse != nullptr ? mouse->buttons() == Qt::LeftButton : event->pointCount() == 1;
}

bool allIsUp(const QPointerEvent* event) {
    const QMouseEvent* mouse = asMouse(event);
    return mouse != nullptr ? mouse->buttons() == Qt::NoButton : event->isEndEvent();
}

bool isReplay(const QEvent* event) {
    return event->isPointerEvent() && !event->spontaneous() && event->type() != QEvent::TouchCancel;
}

// A Flickable, a slider and the like keep the grab once they follow the touch.
bool isKeptByAnItem(const QPointerEvent* event) {
    const auto keeps = [event](const QEventPoint& point) {
        const auto* item = qobject_cast<QQuickItem*>(event->exclusiveGrabber(point));
        return item != nullptr && (item->keepMouseGrab() || item->keepTouchGrab());
    };
    return std::ranges::any_of(event->points(), keeps);
}

}  // namespace

GestureArbiter::GestureArbiter(QQuickWindow* window, std::function<void(QEvent*)> deliver)
    : window_(window), deliver_(std::move(deliver)) {}

bool GestureArbiter::takes(QEvent* event) {
    // A Flickable that held back a press sends it through the window once more.
    if (isReplay(event))
        return false;
    switch (event->type()) {
        case QEvent::TouchBegin:
        case QEvent::MouseButtonPress:
            return takesPress(static_cast<QPointerEvent*>(event));
        case QEvent::TouchUpdate:
        case QEvent::MouseMove:
        case QEvent::MouseButtonDblClick:  // follows the press in a double click
            return takesMove(static_cast<QPointerEvent*>(event));
        case QEvent::TouchEnd:
        case QEvent::MouseButtonRelease:
            return takesRelease(static_cast<QPointerEvent*>(event));
        case QEvent::FocusOut:
            interrupt();
            return false;
        case QEvent::TouchCancel:
        case QEvent::Hide:
            // The touch will not be reported to end after these.
            interrupt();
            forget();
            return false;
        default:
            return false;
    }
}

bool GestureArbiter::takesPress(QPointerEvent* event) {
    if (device_ != nullptr && event->device() != device_)
        return false;
    interrupt();
    if (!isSimple(event)) {
        preventPress(event);
        return taken_;
    }
    // If a touch is still followed, its end got lost.
    forget();
    start(event);
    return taken_;
}

bool GestureArbiter::takesMove(QPointerEvent* event) {
    if (device_ == nullptr || event->device() != device_)
        return false;
    if (allIsUp(event)) {
        interrupt();
        forget();
    } else if (!isSimple(event)) {
        interrupt();
        preventPress(event);
    } else {
        feed(&GestureRecognizer::touchMoved, event);
    }
    return taken_;
}

bool GestureArbiter::takesRelease(QPointerEvent* event) {
    if (device_ == nullptr || event->device() != device_)
        return false;
    if (event->point(0).position() != lastPosition_)
        feed(&GestureRecognizer::touchMoved, event);
    feed(&GestureRecognizer::touchEnded, event);
    interrupt();
    preventPress(event);
    const bool taken = taken_;
    if (allIsUp(event))
        forget();
    return taken;
}

void GestureArbiter::start(QPointerEvent* event) {
    const QPointF position = event->point(0).position();
    for (QQuickItem* view = hitTest(window_->contentItem(), position); view != nullptr;
         view = view->parentItem()) {
        for (GestureRecognizer* recognizer : gestureRecognizersOf(view)) {
            if (std::find(recognizers_.begin(), recognizers_.end(), recognizer) !=
                recognizers_.end())
                continue;
            recognizer->start(view, position);
            recognizers_.emplace_back(recognizer);
        }
    }
    if (recognizers_.empty())
        return;
    device_ = event->device();
    feed(&GestureRecognizer::touchBegan, event);
}

void GestureArbiter::feed(Handler handler, QPointerEvent* event) {
    const Touch touch = {.position = event->point(0).position(),
                         .milliseconds = static_cast<qint64>(event->timestamp())};
    lastPosition_ = touch.position;
    // A copy, as actions and delegates may change the list.
    for (const QPointer<GestureRecognizer>& recognizer : std::vector(recognizers_)) {
        if (recognizer.isNull() || !recognizer->isUndecided())
            continue;
        if (recognizer->touchedView_.isNull()) {
            recognizer->cancel();
            continue;
        }
        recognizer->touch_ = touch;
        ((*recognizer).*handler)(touch);
        decide(recognizer, event);
    }
    std::erase_if(recognizers_, [](const QPointer<GestureRecognizer>& recognizer) {
        return recognizer.isNull() || !recognizer->isUndecided();
    });
    if (recognizers_.empty() && !taken_ && !refusedDrag_)
        forget();
}

void GestureArbiter::decide(const QPointer<GestureRecognizer>& recognizer, QPointerEvent* event) {
    const auto requested = std::exchange(recognizer->requested_, std::nullopt);
    if (!requested)
        return;
    if (!recognizer->isPossible() || *requested == GestureState::Failed) {
        recognizer->enter(*requested);
        return;
    }
    const bool may = mayBegin(recognizer, *requested, event);
    // A delegate may have removed it.
    if (recognizer.isNull() || !recognizer->isPossible())
        return;
    if (!may) {
        recognizer->enter(GestureState::Failed);
        return;
    }
    failRivalsOf(recognizer);
    takeFromItems(event);
    if (recognizer && recognizer->isPossible())
        recognizer->enter(*requested);
}

bool GestureArbiter::mayBegin(const QPointer<GestureRecognizer>& recognizer, GestureState requested,
                              QPointerEvent* event) {
    const bool isDrag = requested == GestureState::Began;
    if (isDrag && isKeptByAnItem(event))
        return false;
    if (!recognizer->shouldBegin()) {
        refusedDrag_ = refusedDrag_ || isDrag;
        return false;
    }
    return std::ranges::none_of(std::vector(recognizers_), [&recognizer](const auto& other) {
        return other && other->isActive() && !mayRunTogether(recognizer, other);
    });
}

bool GestureArbiter::mayRunTogether(const QPointer<GestureRecognizer>& one,
                                    const QPointer<GestureRecognizer>& other) {
    return one && other &&
           (one->agreesToRunWith(*other) || (one && other && other->agreesToRunWith(*one)));
}

void GestureArbiter::failRivalsOf(const QPointer<GestureRecognizer>& recognizer) {
    for (const QPointer<GestureRecognizer>& other : std::vector(recognizers_))
        if (other && other != recognizer && other->isPossible() &&
            !mayRunTogether(recognizer, other) && other)
            other->enter(GestureState::Failed);
}

void GestureArbiter::takeFromItems(QPointerEvent* event) {
    if (std::exchange(taken_, true))
        return;
    deliverHeldMoves(event);
    for (const QEventPoint& point : event->points()) {
        // Through another grabber: a Flickable that watches its children notices only if a child
        // loses the touch to somebody else.
        event->setExclusiveGrabber(point, window_->contentItem());
        event->clearPassiveGrabbers(point);
    }
    if (asMouse(event) == nullptr) {
        QTouchEvent cancel(QEvent::TouchCancel, event->pointingDevice());
        deliver_(&cancel);
        return;
    }
    event->setExclusiveGrabber(event->point(0), nullptr);
}

// A button does not distinguish a drag from a press: the touch is taken from it when it would
// press. Until then a Flickable may take the touch over.
void GestureArbiter::preventPress(QPointerEvent* event) {
    if (!refusedDrag_ || taken_)
        return;
    deliverHeldMoves(event);
    if (!isKeptByAnItem(event))
        takeFromItems(event);
}

// Qt holds back a touch's movements until the next frame. Without that frame they would reach the
// items after the end of the touch.
void GestureArbiter::deliverHeldMoves(const QPointerEvent* event) {
    if (asMouse(event) != nullptr)
        return;
    QEvent frame(QEvent::UpdateRequest);
    deliver_(&frame);
}

void GestureArbiter::interrupt() {
    for (const QPointer<GestureRecognizer>& recognizer : std::exchange(recognizers_, {}))
        if (recognizer)
            recognizer->cancel();
    if (!taken_ && !refusedDrag_)
        forget();
}

void GestureArbiter::forget() {
    recognizers_.clear();
    device_ = nullptr;
    taken_ = false;
    refusedDrag_ = false;
}

}  // namespace tarnwick
