#include "support/SteppedClock.h"

#include <QCoreApplication>
#include <algorithm>
#include <cmath>

namespace tarnwick::testing {

SteppedClock::SteppedClock() {
    install();
    heart_.setStartValue(0);
    heart_.setEndValue(1);
    heart_.setLoopCount(-1);
    heart_.start();
}

SteppedClock::~SteppedClock() {
    uninstall();
}

void SteppedClock::start() {
    start_ = now_;
    QAnimationDriver::start();
}

void SteppedClock::advance(double seconds) {
    constexpr qint64 frame = 10;  // milliseconds
    const qint64 end = now_ + std::lround(seconds * 1000.0);
    while (now_ < end) {
        // Animations that were just started register in a turn of the loop.
        QCoreApplication::sendPostedEvents();
        now_ = std::min(now_ + frame, end);
        if (isRunning())
            advanceAnimation();
    }
    QCoreApplication::sendPostedEvents(nullptr, QEvent::MetaCall);
    finishDeletions();
}

void finishDeletions() {
    constexpr int depth = 4;  // what is deleted lets go of others, which are deleted later again
    for (int turn = 0; turn < depth; ++turn)
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

}  // namespace tarnwick::testing
