#include "support/SteppedClock.h"

#include <QCoreApplication>
#include <algorithm>
#include <cmath>

namespace tarnwick::testing {

SteppedClock::SteppedClock() {
    install();
}

SteppedClock::~SteppedClock() {
    uninstall();
}

void SteppedClock::advance(double seconds) {
    constexpr qint64 frame = 10;  // milliseconds
    const qint64 end = now_ + std::lround(seconds * 1000.0);
    while (now_ < end) {
        // Animations that were just started register in a turn of the loop.
        QCoreApplication::sendPostedEvents();
        now_ = std::min(now_ + frame, end);
        advanceAnimation();
    }
    QCoreApplication::sendPostedEvents(nullptr, QEvent::MetaCall);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

}  // namespace tarnwick::testing
