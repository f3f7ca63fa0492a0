// The arithmetic of the reveal container, free of its views. Lengths in points, times in seconds,
// velocities in points a second. The left side, where the rear view is, and the right side mirror
// each other.
#pragma once

#include <QRectF>
#include <QSizeF>

namespace tarnwick {

// Where the front view is. The numbers are compared: from left to right.
enum RevealPosition : int {
    FrontPositionSlidLeftRemoved = 0,
    FrontPositionSlidLeftMost = 1,
    FrontPositionSlidLeft = 2,
    FrontPositionClosed = 3,
    FrontPositionSlidRight = 4,
    FrontPositionSlidRightMost = 5,
    FrontPositionSlidRightRemoved = 6,
    FrontPositionNone = 255
};

// How far the front view goes to one side, and how it behaves there.
struct RevealSide {
    double revealWidth = 260.0;  // a negative one is added to the container's width
    double revealOverdraw = 60.0;
    double revealDisplacement = 40.0;
    bool bounceBackOnOverdraw = true;
    bool stableDragOnOverdraw = false;
};

struct RevealGeometry {
    QSizeF size;  // of the container
    RevealSide rear;
    RevealSide right;

    // The side that a location or position is on: the rear one unless it is left of closed.
    const RevealSide& sideOf(double x) const { return x < 0 ? right : rear; }
    double revealWidth(const RevealSide& side) const;
};

// Maps the value from one range onto the other; what is below it, or no number, gives its lower
// end.
double scaledValue(double value, double from, double to, double low, double high);

// The x of the front view at a position.
double frontLocation(const RevealGeometry& geometry, RevealPosition position);
// Where the side views stand while the front view is at x.
QRectF rearFrame(const RevealGeometry& geometry, double x);
QRectF rightFrame(const RevealGeometry& geometry, double x);

// Where the front view goes when it is dragged to x: at half speed in the overdraw, and no further
// than it.
double adjustedDragLocation(const RevealGeometry& geometry, double x, RevealPosition position);

// Where a finger has dragged a front view that is at x: what adjustedDragLocation() makes x of.
double dragLocation(const RevealGeometry& geometry, double x, RevealPosition position);

// How far a view may go when it overshoots the end of its move.
struct RevealLimits {
    double least;
    double most;
};
// Of the front view: no further than there are views to reveal.
RevealLimits frontLimits(const RevealGeometry& geometry, bool hasRear, bool hasRight);
RevealLimits rearLimits(const RevealGeometry& geometry);
RevealLimits rightLimits(const RevealGeometry& geometry);

// A drag that wants to begin: where its touch went down and how far it has gone since.
struct RevealDrag {
    double from;
    double translation;
    double width;        // of the container
    double borderWidth;  // of the part where drags may start; 0 is everywhere
    RevealPosition position;
    bool hasRear;
    bool hasRight;
};
bool dragMayBegin(const RevealDrag& drag);

// Where a released front view goes, and how long it takes.
struct RevealMove {
    RevealPosition position;
    double duration;
};
// A flick is faster than `quickFlickVelocity`; a slower release takes `toggleAnimationDuration`.
RevealMove moveOnRelease(const RevealGeometry& geometry, double x, double velocity,
                         double quickFlickVelocity, double toggleAnimationDuration);

// The first leg of a push: to the open side's end before the front child is changed. The second leg
// closes.
RevealMove firstLegOfPush(RevealPosition position, double toggleAnimationDuration);

// How far the front view at x has gone: into the reveal width, and beyond it into the overdraw.
struct RevealProgress {
    double progress;
    double overProgress;
};
RevealProgress revealProgress(const RevealGeometry& geometry, double x);

}  // namespace tarnwick
