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

// A continuous gesture goes from Possible over Began and Changed to Ended or Cancelled, a tap from
// Possible to Ended; what turned out to be something else has Failed. The last state stays until
// the next touch starts.
enum class GestureState { Possible, Began, Changed, Ended, Cancelled, Failed };

// Asked about the recognisers that it is set on. Held weakly: whoever implements it is a QObject
// too.
class GestureRecognizerDelegate {
public:
    virtual ~GestureRecognizerDelegate() = default;
    // Asked when the touch has become the gesture, which is still Possible then; no fails it.
    virtual bool gestureRecognizerShouldBegin(GestureRecognizer&) { return true; }
    // Asked about two gestures of one touch. They run side by side if either's delegate agrees.
    virtual bool gestureRecognizerShouldRecognizeSimultaneouslyWith(
        GestureRecognizer& /*recognizer*/, GestureRecognizer& /*other*/) {
        return false;
    }
};

// Follows one finger, or the mouse with its left button held, from the moment when it goes down on
// a view that the recogniser was added to, and tells when it is the gesture. It is at work in a
// Window only. Main thread.
class GestureRecognizer : public QObject {
    Q_OBJECT

public:
    // The action is called at every state from Began on. It may delete the recogniser.
    explicit GestureRecognizer(std::function<void()> action, QObject* parent = nullptr);

    GestureState state() const { return state_; }
    void setDelegate(GestureRecognizerDelegate* delegate);
    // Where the touch is or was last, in points of the view; of the window's content if there is no
    // view.
    QPointF location(const QQuickItem* view) const;

protected:
    // A touch at one moment: points of the window's content, milliseconds of the events' own clock.
    struct Touch {
        QPointF position;
        qint64 milliseconds = 0;
    };

    // For what the touch does. They say what it means with the calls below; delegates are asked and
    // the action is called once they have returned. Between two calls the touch may have been
    // decided on: look at the state.
    virtual void touchBegan(const Touch&) {}
    virtual void touchMoved(const Touch&) {}
    virtual void touchEnded(const Touch&) {}

    void begin() { wish_ = GestureState::Began; }
    void change() { wish_ = GestureState::Changed; }
    void end() { wish_ = GestureState::Ended; }
    void fail() { wish_ = GestureState::Failed; }

    bool isActive() const;
    bool isPossible() const { return state_ == GestureState::Possible; }
    // From where the touch began to where it is, in points of the window's content.
    QPointF wayFromStart() const { return touch_.position - start_; }
    // Points that a touch may stray before it is a drag; the toolkit's own number.
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
    std::optional<GestureState> wish_;
    QPointer<QQuickItem> touchedView_;
    QPointF start_;
    Touch touch_;
};

// A recogniser may be on several views, and a view may have several; neither owns the other, and
// either may vanish first. The view need not be in a window yet. Main thread.
void addGestureRecognizer(QQuickItem* view, GestureRecognizer* recognizer);
std::vector<GestureRecognizer*> gestureRecognizersOf(const QQuickItem* view);

}  // namespace tarnwick
