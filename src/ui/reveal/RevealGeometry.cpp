#include "ui/reveal/RevealGeometry.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>

namespace tarnwick {

namespace {

// The side as a factor: 1 for the rear, -1 for the right.
int factorOf(double x) {
    return x < 0 ? -1 : 1;
}

int factorOf(RevealPosition position) {
    return position < FrontPositionClosed ? -1 : 1;
}

// Mirrors a position of the right side around closed, so that rules need to be stated for one side
// only.
RevealPosition mirrored(RevealPosition position, int factor) {
    return static_cast<RevealPosition>(factor * (position - FrontPositionClosed) +
                                       FrontPositionClosed);
}

// Where a slow release goes, for a location measured from closed outwards.
RevealPosition slowTarget(const RevealSide& side, double width, double x) {
    if (x > width) {
        if (side.bounceBackOnOverdraw)
            return FrontPositionClosed;
        // The half of the overdraw alone is added to the width.
        const bool far = x > width + side.revealOverdraw * 0.5;
        if (side.stableDragOnOverdraw && far)
            return FrontPositionSlidRightMost;
    }
    return x > width * 0.5 ? FrontPositionSlidRight : FrontPositionClosed;
}

// How far the front view follows a finger outwards, and how far at half its speed beyond that.
struct DragZones {
    double width;
    double overdraw;
};

DragZones dragZones(const RevealGeometry& geometry, double x, RevealPosition position) {
    const RevealSide& side = geometry.sideOf(x);
    const double width = geometry.revealWidth(side);
    const bool stable = !side.bounceBackOnOverdraw || side.stableDragOnOverdraw ||
                        position == FrontPositionSlidRightMost ||
                        position == FrontPositionSlidLeftMost;
    if (stable)
        return {.width = width + side.revealOverdraw, .overdraw = 0};
    return {.width = width, .overdraw = side.revealOverdraw};
}

RevealMove flickMove(const RevealSide& side, double width, double x, double velocity) {
    RevealPosition target = FrontPositionClosed;
    double journey = x;
    if (velocity > 0) {
        target = FrontPositionSlidRight;
        journey = width - x;
        if (x > width && !side.bounceBackOnOverdraw && side.stableDragOnOverdraw) {
            target = FrontPositionSlidRightMost;
            journey = width + side.revealOverdraw - x;
        }
    }
    return {.position = target, .duration = std::abs(journey / velocity)};
}

}  // namespace

double RevealGeometry::revealWidth(const RevealSide& side) const {
    return side.revealWidth < 0 ? size.width() + side.revealWidth : side.revealWidth;
}

double scaledValue(double value, double from, double to, double low, double high) {
    const double result = low + (value - from) * (high - low) / (to - from);
    if (std::isnan(result) || result < low)
        return low;
    return result > high ? high : result;
}

double frontLocation(const RevealGeometry& geometry, RevealPosition position) {
    const int factor = factorOf(position);
    const RevealSide& side = geometry.sideOf(factor);
    const RevealPosition outwards = mirrored(position, factor);
    double location = 0;
    if (outwards == FrontPositionSlidRight)
        location = geometry.revealWidth(side);
    else if (outwards > FrontPositionSlidRight)
        location = geometry.revealWidth(side) + side.revealOverdraw;
    return location * factor;
}

QRectF rearFrame(const RevealGeometry& geometry, double x) {
    const double width = geometry.revealWidth(geometry.rear);
    const double origin = scaledValue(x, 0, width, -geometry.rear.revealDisplacement, 0);
    return {origin, 0, width + geometry.rear.revealOverdraw, geometry.size.height()};
}

QRectF rightFrame(const RevealGeometry& geometry, double x) {
    const double width = geometry.revealWidth(geometry.right);
    const double whole = width + geometry.right.revealOverdraw;
    const double offset = scaledValue(x, -width, 0, 0, geometry.right.revealDisplacement);
    return {geometry.size.width() - whole + offset, 0, whole, geometry.size.height()};
}

double adjustedDragLocation(const RevealGeometry& geometry, double x, RevealPosition position) {
    const auto [width, overdraw] = dragZones(geometry, x, position);
    const double outwards = std::abs(x);
    double adjusted = width + overdraw;
    if (outwards <= width)
        adjusted = outwards;
    else if (outwards <= width + 2 * overdraw)
        adjusted = width + (outwards - width) / 2;
    return adjusted * factorOf(x);
}

double dragLocation(const RevealGeometry& geometry, double x, RevealPosition position) {
    const auto [width, overdraw] = dragZones(geometry, x, position);
    const double outwards = std::abs(x);
    return (outwards <= width ? outwards : outwards + (outwards - width)) * factorOf(x);
}

RevealLimits frontLimits(const RevealGeometry& geometry, bool hasRear, bool hasRight) {
    const auto at = [&geometry](RevealPosition position) {
        return frontLocation(geometry, position);
    };
    return {.least = hasRight
                         ? std::min({0.0, at(FrontPositionSlidLeft), at(FrontPositionSlidLeftMost)})
                         : 0.0,
            .most = hasRear ? std::max(
                                  {0.0, at(FrontPositionSlidRight), at(FrontPositionSlidRightMost)})
                            : 0.0};
}

RevealLimits rearLimits(const RevealGeometry& geometry) {
    const auto [least, most] =
        std::minmax({rearFrame(geometry, 0).x(),
                     rearFrame(geometry, frontLocation(geometry, FrontPositionSlidRight)).x()});
    return {.least = least, .most = most};
}

RevealLimits rightLimits(const RevealGeometry& geometry) {
    const auto [least, most] =
        std::minmax({rightFrame(geometry, 0).x(),
                     rightFrame(geometry, frontLocation(geometry, FrontPositionSlidLeft)).x()});
    return {.least = least, .most = most};
}

bool dragMayBegin(const RevealDrag& drag) {
    const bool fromBorder = drag.borderWidth == 0 ||
                            (drag.hasRear && drag.from <= drag.borderWidth) ||
                            (drag.hasRight && drag.from >= drag.width - drag.borderWidth);
    const bool leadsNowhere =
        drag.position == FrontPositionClosed &&
        ((!drag.hasRear && drag.translation > 0) || (!drag.hasRight && drag.translation < 0));
    return fromBorder && !leadsNowhere;
}

RevealMove moveOnRelease(const RevealGeometry& geometry, double x, double velocity,
                         double quickFlickVelocity, double toggleAnimationDuration) {
    const int factor = factorOf(x);
    const RevealSide& side = geometry.sideOf(x);
    const double width = geometry.revealWidth(side);
    RevealMove move = {.position = slowTarget(side, width, x * factor),
                       .duration = toggleAnimationDuration};
    if (std::abs(velocity) > quickFlickVelocity)
        move = flickMove(side, width, x * factor, velocity * factor);
    move.position = mirrored(move.position, factor);
    return move;
}

RevealMove firstLegOfPush(RevealPosition position, double toggleAnimationDuration) {
    RevealPosition target = FrontPositionClosed;
    if (position > FrontPositionClosed)
        target = FrontPositionSlidRightMost;
    else if (position < FrontPositionClosed)
        target = FrontPositionSlidLeftMost;
    const int steps = std::abs(position - target);
    if (steps == 0)
        return {.position = target, .duration = 0};
    return {.position = target,
            .duration = steps == 1 ? toggleAnimationDuration * 0.8 : toggleAnimationDuration};
}

RevealProgress revealProgress(const RevealGeometry& geometry, double x) {
    const RevealSide& side = geometry.sideOf(x);
    const double width = geometry.revealWidth(side);
    const double outwards = x * factorOf(x);
    return {.progress = outwards / width, .overProgress = (outwards - width) / side.revealOverdraw};
}

}  // namespace tarnwick
