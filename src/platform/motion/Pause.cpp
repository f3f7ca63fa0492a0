#include "platform/motion/Pause.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <utility>

namespace tarnwick {

namespace {

constexpr double millisecondsInASecond = 1000.0;

// The longest pause is 24 days; what is negative or no number does not pause.
int milliseconds(double seconds) {
    constexpr int longest = std::numeric_limits<int>::max();
    if (!(seconds > 0))
        return 0;
    return static_cast<int>(
        std::lround(std::min<double>(seconds * millisecondsInASecond, longest)));
}

}  // namespace

Pause::Pause(QObject* parent) : QObject(parent) {
    connect(&animation_, &QPauseAnimation::finished, this, [this] {
        const auto task = std::exchange(task_, nullptr);
        if (task)
            task();
    });
}

void Pause::start(double seconds, std::function<void()> task) {
    cancel();
    task_ = std::move(task);
    animation_.setDuration(milliseconds(seconds));
    animation_.start();
}

void Pause::cancel() {
    task_ = nullptr;
    animation_.stop();
}

Stopwatch::Stopwatch(QObject* parent) : QObject(parent) {
    animation_.setDuration(std::numeric_limits<int>::max());
}

void Stopwatch::start() {
    animation_.stop();
    animation_.start();
    wall_.start();
}

void Stopwatch::stop() {
    animation_.stop();
}

bool Stopwatch::isRunning() const {
    return animation_.state() == QAbstractAnimation::Running;
}

double Stopwatch::seconds() const {
    const qint64 passed = std::max<qint64>(animation_.currentTime(), wall_.elapsed());
    return static_cast<double>(passed) / millisecondsInASecond;
}

}  // namespace tarnwick
