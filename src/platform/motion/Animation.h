#pragma once

#include <QQuickItem>
#include <functional>
#include <variant>
#include <vector>

namespace tarnwick {

enum class Animated { No, Yes };

// How a change runs its course. Field terms: an easing curve, or a spring with a damping ratio (1.0
// does not swing) and an initial velocity in distances per second.
enum class Easing { InOut, Out };
struct Spring {
    double dampingRatio = 1.0;
    double initialVelocity = 0.0;
};
using Course = std::variant<Easing, Spring>;

// The part of the way, 0 at the start and 1 at the end, that is done after a part of the time. A
// spring is at rest at the end of its duration, in seconds.
double courseProgress(const Course& course, double timePart, double duration);

// One number of an item and where it goes.
struct Change {
    enum class Property { Opacity, Scale, X, Y, Width, Height };
    QQuickItem* item;
    Property property;
    double target;
};

// Told once when it is over: finished is false if another animation took one of its properties
// over, or an item vanished.
using Completion = std::function<void(bool finished)>;

// Animates the changes together over the duration, in seconds; without a change to make it is over
// at once. A running animation of the same
// number of the same item gives it up where it stands, so that nothing jumps. Items may vanish
// meanwhile. Main thread.
void animate(double duration, const Course& course, const std::vector<Change>& changes,
             Completion completion = {});

// Sets the numbers at once; running animations give them up.
void applyAtOnce(const std::vector<Change>& changes);

}  // namespace tarnwick
