#include <gtest/gtest.h>

#include <cmath>

#include "ui/reveal/RevealGeometry.h"

namespace tarnwick {
namespace {

const RevealGeometry phone = {.size = {375, 667}};

RevealGeometry phoneWith(bool bounceBack, bool stableDrag) {
    RevealGeometry geometry = phone;
    geometry.rear.bounceBackOnOverdraw = geometry.right.bounceBackOnOverdraw = bounceBack;
    geometry.rear.stableDragOnOverdraw = geometry.right.stableDragOnOverdraw = stableDrag;
    return geometry;
}

TEST(RevealGeometry, EachPositionHasItsPlaceOnBothSides) {
    const std::pair<int, double> rows[] = {{0, -320}, {1, -320}, {2, -260}, {3, 0},
                                           {4, 260},  {5, 320},  {6, 320}};
    for (const auto& [position, x] : rows)
        EXPECT_EQ(frontLocation(phone, static_cast<RevealPosition>(position)), x) << position;
    RevealGeometry relative = phone;
    relative.rear.revealWidth = -55;
    EXPECT_EQ(frontLocation(relative, FrontPositionSlidRight), 320);
}

TEST(RevealGeometry, ScaledValuesStayInTheirRange) {
    EXPECT_EQ(scaledValue(130, 0, 260, -40, 0), -20);
    EXPECT_EQ(scaledValue(-5, 0, 260, -40, 0), -40);
    EXPECT_EQ(scaledValue(900, 0, 260, -40, 0), 0);
    EXPECT_EQ(scaledValue(0, 0, 0, -40, 0), -40);
    EXPECT_EQ(scaledValue(std::nan(""), 0, 260, 3, 4), 3);
}

TEST(RevealGeometry, SideViewsMoveIntoPlaceAsTheFrontSlides) {
    EXPECT_EQ(rearFrame(phone, 0), QRectF(-40, 0, 320, 667));
    EXPECT_EQ(rearFrame(phone, 130), QRectF(-20, 0, 320, 667));
    EXPECT_EQ(rearFrame(phone, 300), QRectF(0, 0, 320, 667));
    EXPECT_EQ(rightFrame(phone, 0), QRectF(95, 0, 320, 667));
    EXPECT_EQ(rightFrame(phone, -130), QRectF(75, 0, 320, 667));
    EXPECT_EQ(rightFrame(phone, -300), QRectF(55, 0, 320, 667));
}

TEST(RevealGeometry, ADragGoesAtHalfSpeedThroughTheOverdraw) {
    struct Row {
        RevealGeometry geometry;
        RevealPosition position;
        double finger;
        double front;
    };
    const Row rows[] = {
        {phone, FrontPositionClosed, 100, 100},
        {phone, FrontPositionClosed, 260, 260},
        {phone, FrontPositionClosed, 300, 280},
        {phone, FrontPositionClosed, 380, 320},
        {phone, FrontPositionClosed, 1000, 320},
        {phone, FrontPositionSlidRightMost, 300, 300},
        {phone, FrontPositionSlidRightMost, 330, 320},
        {phoneWith(false, false), FrontPositionClosed, 300, 300},
        {phoneWith(true, true), FrontPositionClosed, 400, 320},
    };
    for (const Row& row : rows) {
        EXPECT_EQ(adjustedDragLocation(row.geometry, row.finger, row.position), row.front);
        EXPECT_EQ(adjustedDragLocation(row.geometry, -row.finger, row.position), -row.front);
        const double caught = dragLocation(row.geometry, row.front, row.position);
        EXPECT_EQ(adjustedDragLocation(row.geometry, caught, row.position), row.front);
    }
}

TEST(RevealGeometry, AReleaseGoesOnBothSidesWhereItsPlaceAndSpeedSay) {
    struct Row {
        RevealGeometry geometry;
        double x;
        double velocity;
        RevealPosition target;
        double duration;
    };
    const Row rows[] = {
        {phone, 120, 0, FrontPositionClosed, 0.3},
        {phone, 130, 250, FrontPositionClosed, 0.3},
        {phone, 200, -250, FrontPositionSlidRight, 0.3},
        {phone, 300, 0, FrontPositionClosed, 0.3},
        {phoneWith(false, false), 310, 0, FrontPositionSlidRight, 0.3},
        {phoneWith(false, true), 290, 0, FrontPositionSlidRight, 0.3},
        {phoneWith(false, true), 291, 0, FrontPositionSlidRightMost, 0.3},
        {phone, 10, 500, FrontPositionSlidRight, 0.5},
        {phone, 300, 400, FrontPositionSlidRight, 0.1},
        {phone, 200, -400, FrontPositionClosed, 0.5},
        {phoneWith(false, true), 300, 400, FrontPositionSlidRightMost, 0.05},
    };
    for (const Row& row : rows) {
        const RevealMove right = moveOnRelease(row.geometry, row.x, row.velocity, 250, 0.3);
        EXPECT_EQ(right.position, row.target) << row.x << ", " << row.velocity;
        EXPECT_DOUBLE_EQ(right.duration, row.duration) << row.x << ", " << row.velocity;
        const RevealMove left = moveOnRelease(row.geometry, -row.x, -row.velocity, 250, 0.3);
        EXPECT_EQ(left.position, 6 - row.target) << row.x << ", " << row.velocity;
        EXPECT_DOUBLE_EQ(left.duration, row.duration) << row.x << ", " << row.velocity;
    }
}

TEST(RevealGeometry, APushTakesAShorterFirstLegFromNearby) {
    struct Row {
        RevealPosition from;
        RevealPosition target;
        double duration;
    };
    const Row rows[] = {
        {FrontPositionClosed, FrontPositionClosed, 0},
        {FrontPositionSlidRight, FrontPositionSlidRightMost, 0.24},
        {FrontPositionSlidRightMost, FrontPositionSlidRightMost, 0},
        {FrontPositionSlidRightRemoved, FrontPositionSlidRightMost, 0.24},
        {FrontPositionSlidLeft, FrontPositionSlidLeftMost, 0.24},
    };
    for (const Row& row : rows) {
        const RevealMove leg = firstLegOfPush(row.from, 0.3);
        EXPECT_EQ(leg.position, row.target) << row.from;
        EXPECT_DOUBLE_EQ(leg.duration, row.duration) << row.from;
    }
}

TEST(RevealGeometry, ProgressIsToldIntoTheWidthAndBeyondIt) {
    EXPECT_EQ(revealProgress(phone, 130).progress, 0.5);
    EXPECT_EQ(revealProgress(phone, -290).overProgress, 0.5);
}

}  // namespace
}  // namespace tarnwick
