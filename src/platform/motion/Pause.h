#pragma once

#include <QElapsedTimer>
#include <QPauseAnimation>
#include <functional>

namespace tarnwick {

// Waiting and measuring on the clock of the animations, so that a test which advances that clock
// advances these as well. Main thread.

// A one-shot timer. Starting it again forgets the task that waited before.
class Pause : public QObject {
    Q_OBJECT

public:
    explicit Pause(QObject* parent);

    void start(double seconds, std::function<void()> task);
    void cancel();

private:
    QPauseAnimation animation_;
    std::function<void()> task_;
};

// Tells the seconds since it was started; those in which nothing could be animated count too.
class Stopwatch : public QObject {
    Q_OBJECT

public:
    explicit Stopwatch(QObject* parent);

    void start();
    void stop();
    bool isRunning() const;
    double seconds() const;

private:
    QPauseAnimation animation_;
    QElapsedTimer wall_;
};

}  // namespace tarnwick
