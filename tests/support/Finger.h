#pragma once

#include <QInputEvent>
#include <QPoint>
#include <QPointingDevice>
#include <QQuickWindow>
#include <QTest>
#include <array>

#include "support/SteppedClock.h"

namespace tarnwick::testing {

enum class Pointer { Touch, Mouse };
inline void PrintTo(Pointer pointer, std::ostream* out) {
    *out << (pointer == Pointer::Touch ? "Touch" : "Mouse");
}

// A finger on a shown window, or the mouse with its left button. What takes time passes on the
// clock, whose time the events carry and by which the window draws its frames. A finger that
// is not down neither moves nor lifts. Points of the window's content, seconds.
class Finger : public QObject {
public:
    Finger(QQuickWindow& window, SteppedClock& clock, Pointer pointer = Pointer::Touch);

    void press(const QPoint& position);
    // Evenly, with an event at each step.
    void move(const QPoint& position, double seconds = 0.1, int steps = 10);
    void rest(double seconds);
    void lift();
    void tap(const QPoint& position);
    void drag(const QPoint& from, const QPoint& to, double seconds = 0.1);

    // A second finger, or the right button.
    void pressSecond(const QPoint& position);
    void liftSecond();
    // The system takes a finger's touch away: the window hears of that, and of no lifting.
    void cancel();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    using Step = QTest::QTouchEventSequence& (QTest::QTouchEventSequence::*)(int, const QPoint&,
                                                                             QWindow*);

    bool isTouch() const { return pointer_ == Pointer::Touch; }
    static Qt::MouseButton buttonOf(int which);
    void pressOne(int which, const QPoint& position);
    void moveTo(const QPoint& position);
    void liftOne(int which);
    void touch(int which, Step step);
    void drawFrames();
    // Milliseconds, of the events.
    int now() const;
    void setMouseTime() const;

    QQuickWindow& window_;
    SteppedClock& clock_;
    Pointer pointer_;
    QPointingDevice* device_;
    int start_;  // milliseconds
    std::array<QPoint, 2> positions_;
    std::array<bool, 2> isDown_ = {};
    bool isMuted_ = false;
    qint64 lastFrame_ = 0;
    quint64 lastTime_ = 0;
};

}  // namespace tarnwick::testing
