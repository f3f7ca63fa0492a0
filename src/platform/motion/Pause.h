#pragma once

#include <QElapsedTimer>
#include <QPauseAnimation>
#include <functional>

namespace tarnwick {

// Timers on the animation clock, so that a test that advances that clock advances them too. Main
// thread.

// A one-shot timer. Starting it again drops the pending task. The task may call deleteLater() on
// it.
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

// Measures the seconds since its start, including times in which no frame could be drawn.
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
