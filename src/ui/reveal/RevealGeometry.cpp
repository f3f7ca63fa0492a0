#include "ui/reveal/RevealGeometry.h"

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
    const int factor = factorOf(x);
    const RevealSide& side = geometry.sideOf(x);
    double width = geometry.revealWidth(side);
    double overdraw = side.revealOverdraw;
    const bool stable = !side.bounceBackOnOverdraw || side.stableDragOnOverdraw ||
                        position == FrontPositionSlidRightMost ||
                        position == FrontPositionSlidLeftMost;
    if (stable) {
        width += overdraw;
        overdraw = 0;
    }
    const double outwards = x * factor;
    if (outwards <= width)
        return x;
    if (outwards <= width + 2 * overdraw)
        return (width + (outwards - width) / 2) * factor;
    return (width + overdraw) * factor;
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
