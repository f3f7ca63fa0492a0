#pragma once

#include <QObject>
#include <QPointF>
#include <QPointer>
#include <QQuickItem>
#include <functional>
#include <optional>
#include <vector>

#include "platform/threads/WeakDelegate.h"

namespace tarnwick {

class GestureArbiter;
class GestureRecognizer;

// A continuous gesture goes from Possible through Began and Changed to Ended or Cancelled, a tap
// from Possible to Ended. A touch that turns out to be something else has Failed. The last state
// remains until the next touch starts.
enum class GestureState { Possible, Began, Changed, Ended, Cancelled, Failed };

// Consulted by the recognisers that it is set on. Held weakly: an implementation is a QObject
// too.
class GestureRecognizerDelegate {
public:
    virtual ~GestureRecognizerDelegate() = default;
    // Asked when the touch has become the gesture, whose state is still Possible; false fails it.
    virtual bool gestureRecognizerShouldBegin(GestureRecognizer&) { return true; }
    // Asked about two gestures of one touch, which run side by side if either's delegate agrees.
    virtual bool gestureRecognizerShouldRecognizeSimultaneouslyWith(
        GestureRecognizer& /*recognizer*/, GestureRecognizer& /*other*/) {
        return false;
    }
};

// Follows one finger, or the mouse with its left button held, from the moment it goes down on a
// view that the recogniser was added to. Works in a Window only. Main thread.
class GestureRecognizer : public QObject {
    Q_OBJECT

public:
    // The action is called on every state from Began on. It may delete the recogniser.
    explicit GestureRecognizer(std::function<void()> action, QObject* parent = nullptr);

    GestureState state() const { return state_; }
    void setDelegate(const WeakDelegate<GestureRecognizerDelegate>& delegate);
    // The current or last position of the touch, in points of the view; of the window's content if
    // the view is null.
    QPointF location(const QQuickItem* view) const;

protected:
    // A touch at one moment: points of the window's content, milliseconds on the events' own clock.
    struct Touch {
        QPointF position;
        qint64 milliseconds = 0;
    };

    // Subclasses say what the touch means with the calls below; delegates are asked and the action
    // is called after these return. In between the touch may have been decided on: check the state.
    virtual void touchBegan(const Touch&) {}
    virtual void touchMoved(const Touch&) {}
    virtual void touchEnded(const Touch&) {}

    void begin() { requested_ = GestureState::Began; }
    void change() { requested_ = GestureState::Changed; }
    void end() { requested_ = GestureState::Ended; }
    void fail() { requested_ = GestureState::Failed; }

    bool isActive() const;
    bool isPossible() const { return state_ == GestureState::Possible; }
    // From the start of the touch to its position, in points of the window's content.
    QPointF wayFromStart() const { return touch_.position - start_; }
    // The distance in points beyond which a touch is a drag; the toolkit's own value.
    static double dragThreshold();
    static bool isDrag(const QPointF& way);

private:
    friend class GestureArbiter;

    void start(QQuickItem* view, const QPointF& position);
    void enter(GestureState state);
    void cancel();
    bool isUndecided() const { return isPossible() || isActive(); }
    bool shouldBegin();
    bool agreesToRunWith(GestureRecognizer& other);

    std::function<void()> action_;
    WeakDelegate<GestureRecognizerDelegate> delegate_;
    GestureState state_ = GestureState::Possible;
    std::optional<GestureState> requested_;
    QPointer<QQuickItem> touchedView_;
    QPointF start_;
    Touch touch_;
};

// A recogniser may be on several views, and a view may have several; neither owns the other, and
// either may be deleted first. The view need not be in a window yet. Main thread.
void addGestureRecognizer(QQuickItem* view, GestureRecognizer* recognizer);
std::vector<GestureRecognizer*> gestureRecognizersOf(const QQuickItem* view);

}  // namespace tarnwick
