#pragma once

#include <QAnimationDriver>
#include <QVariantAnimation>

namespace tarnwick::testing {

// The clock of all animations and pauses while it lives: it stands still until the test advances
// it.
class SteppedClock : public QAnimationDriver {
public:
    SteppedClock();
    ~SteppedClock() override;

    // In steps of a frame, as a screen would.
    void advance(double seconds);
    // Milliseconds since the clock was made.
    qint64 now() const { return now_; }

    // Since animations run again.
    qint64 elapsed() const override { return now_ - start_; }

protected:
    void start() override;

private:
    // Pauses alone would be left to a timer of the system.
    QVariantAnimation heart_;
    qint64 now_ = 0;
    qint64 start_ = 0;
};

// Deletes what is to be deleted later, and what that lets go of.
void finishDeletions();

}  // namespace tarnwick::testing
