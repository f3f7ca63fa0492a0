#pragma once

#include <QQuickItem>
#include <functional>
#include <limits>
#include <variant>
#include <vector>

namespace tarnwick {

enum class Animated { No, Yes };

// How a value moves over time: along an easing curve, or like a spring with a damping ratio (1.0
// does not oscillate) and an initial velocity in distances per second.
enum class Easing { InOut, Out };
struct Spring {
    double dampingRatio = 1.0;
    double initialVelocity = 0.0;
};
using Course = std::variant<Easing, Spring>;

// The progress, from 0 to 1, after a part of the duration, which is in seconds. A spring is at rest
// at the end.
double courseProgress(const Course& course, double timePart, double duration);

// A property of an item and its target value. A course that goes beyond the target, as a spring
// does, stops at the limits.
struct Change {
    enum class Property { Opacity, Scale, X, Y, Width, Height };
    QQuickItem* item;
    Property property;
    double target;
    double least = -std::numeric_limits<double>::infinity();
    double most = std::numeric_limits<double>::infinity();
};

// Called once at the end. `finished` is false if another animation took over one of the properties,
// or an item was deleted.
using Completion = std::function<void(bool finished)>;

// Animates the changes together over the duration, in seconds; completes at once if there is
// nothing to change. A running animation of the same property of the same item stops where it is,
// so that nothing jumps. Items may be deleted meanwhile. Main thread.
void animate(double duration, const Course& course, const std::vector<Change>& changes,
             Completion completion = {});

// Sets the values at once and stops running animations of them.
void applyAtOnce(const std::vector<Change>& changes);

}  // namespace tarnwick
