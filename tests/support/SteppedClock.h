#pragma once

#include <QAnimationDriver>

namespace tarnwick::testing {

// The clock of all animations and pauses while it lives: it stands still until the test advances
// it.
class SteppedClock : public QAnimationDriver {
public:
    SteppedClock();
    ~SteppedClock() override;

    // In steps of a frame, as a screen would.
    void advance(double seconds);
    qint64 elapsed() const override { return now_; }

private:
    qint64 now_ = 0;
};

}  // namespace tarnwick::testing
