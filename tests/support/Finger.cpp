#include "support/Finger.h"

#include <QCoreApplication>
#include <QTouchEvent>
#include <utility>

namespace tarnwick::testing {

namespace {

constexpr int first = 0;
constexpr int second = 1;

QPointingDevice* touchscreen() {
    // There is no way to take a device away again.
    static QPointingDevice* device = QTest::createTouchDevice();
    return device;
}

// Milliseconds of the latest event. Devices outlive a test, and their time must not run backwards.
int latestTime = 0;

}  // namespace

Finger::Finger(QQuickWindow& window, SteppedClock& clock, Pointer pointer)
    : window_(window),
      clock_(clock),
      pointer_(pointer),
      device_(touchscreen()),
      start_(latestTime + 10000 - static_cast<int>(clock.elapsed())) {
    window_.installEventFilter(this);
}

void Finger::press(const QPoint& position) {
    pressOne(first, position);
}

void Finger::move(const QPoint& position, double seconds, int steps) {
    const QPoint from = positions_[first];
    for (int step = 1; step <= steps; ++step) {
        clock_.advance(seconds / steps);
        moveTo(from + (position - from) * step / steps);
        drawFrames();
    }
}

void Finger::rest(double seconds) {
    clock_.advance(seconds);
    drawFrames();
}

void Finger::lift() {
    liftOne(first);
}

void Finger::tap(const QPoint& position) {
    press(position);
    rest(0.05);
    lift();
}

void Finger::drag(const QPoint& from, const QPoint& to, double seconds) {
    press(from);
    move(to, seconds);
    lift();
}

void Finger::pressSecond(const QPoint& position) {
    pressOne(second, position);
}

void Finger::liftSecond() {
    liftOne(second);
}

void Finger::cancel() {
    QTouchEvent event(QEvent::TouchCancel, device_);
    QCoreApplication::sendEvent(&window_, &event);
    // Qt itself has to learn that the finger is up, or it takes the next press for a second one.
    isMuted_ = true;
    lift();
    isMuted_ = false;
}

void Finger::pressOne(int which, const QPoint& position) {
    positions_[which] = position;
    isDown_[which] = true;
    setMouseTime();
    if (isTouch())
        touch(which, &QTest::QTouchEventSequence::press);
    else
        QTest::mousePress(&window_, buttonOf(which), {}, position);
}

void Finger::moveTo(const QPoint& position) {
    if (!isDown_[first])
        return;
    positions_[first] = position;
    setMouseTime();
    if (isTouch())
        touch(first, &QTest::QTouchEventSequence::move);
    else
        QTest::mouseMove(&window_, position);
}

void Finger::liftOne(int which) {
    if (!std::exchange(isDown_[which], false))
        return;
    setMouseTime();
    if (isTouch())
        touch(which, &QTest::QTouchEventSequence::release);
    else
        QTest::mouseRelease(&window_, buttonOf(which), {}, positions_[which]);
}

void Finger::touch(int which, Step step) {
    auto event = QTest::touchEvent(&window_, device_);  // sent at the end
    (event.*step)(which, positions_[which], &window_);
    const int other = second - which;
    if (isDown_[other])
        event.move(other, positions_[other], &window_);
}

Qt::MouseButton Finger::buttonOf(int which) {
    return which == first ? Qt::LeftButton : Qt::RightButton;
}

void Finger::drawFrames() {
    constexpr qint64 frameTime = 16;  // milliseconds
    if (clock_.now() - lastFrame_ < frameTime)
        return;
    lastFrame_ = clock_.now();
    QEvent frame(QEvent::UpdateRequest);
    QCoreApplication::sendEvent(&window_, &frame);
}

bool Finger::eventFilter(QObject* watched, QEvent* event) {
    // A simulated screen is on the time of this machine, from which a point would take its speed:
    // it is told its last time anew first.
    if (isTouch() && event->isPointerEvent()) {
        const quint64 time = static_cast<quint64>(now());
        static_cast<QInputEvent*>(event)->setTimestamp(std::exchange(lastTime_, time));
        static_cast<QInputEvent*>(event)->setTimestamp(time);
    }
    return (isMuted_ && event->isPointerEvent()) || QObject::eventFilter(watched, event);
}

int Finger::now() const {
    return latestTime = start_ + static_cast<int>(clock_.now());
}

void Finger::setMouseTime() const {
    QTest::lastMouseTimestamp = now() - 1;  // each event counts one more
}

}  // namespace tarnwick::testing
