#pragma once

#include "ui/reveal/RevealGeometry.h"

namespace tarnwick {

enum RevealToggleAnimationType : int {
    RevealToggleAnimationSpring = 0,
    RevealToggleAnimationEaseOut = 1
};

// How a reveal container looks and moves. They count from the next layout, drag or move. Lengths in
// points, times in seconds.
struct RevealProperties {
    double rearViewRevealWidth = 260.0;  // a negative one is added to the container's width
    double rearViewRevealOverdraw = 60.0;
    double rearViewRevealDisplacement = 40.0;
    double rightViewRevealWidth = 260.0;
    double rightViewRevealOverdraw = 60.0;
    double rightViewRevealDisplacement = 40.0;
    bool bounceBackOnOverdraw = true;
    bool bounceBackOnLeftOverdraw = true;
    bool stableDragOnOverdraw = false;
    bool stableDragOnLeftOverdraw = false;
    bool presentFrontViewHierarchically = false;  // below the bars, with the menu beside them
    double quickFlickVelocity = 250.0;            // points a second
    double toggleAnimationDuration = 0.3;
    RevealToggleAnimationType toggleAnimationType = RevealToggleAnimationSpring;
    double springDampingRatio = 1.0;
    double replaceViewAnimationDuration = 0.25;
    double draggableBorderWidth = 0.0;  // at 0 a drag may start anywhere
    bool extendsPointInsideHit = false;

    RevealGeometry geometryIn(const QSizeF& size) const {
        return {.size = size,
                .rear = {.revealWidth = rearViewRevealWidth,
                         .revealOverdraw = rearViewRevealOverdraw,
                         .revealDisplacement = rearViewRevealDisplacement,
                         .bounceBackOnOverdraw = bounceBackOnOverdraw,
                         .stableDragOnOverdraw = stableDragOnOverdraw},
                .right = {.revealWidth = rightViewRevealWidth,
                          .revealOverdraw = rightViewRevealOverdraw,
                          .revealDisplacement = rightViewRevealDisplacement,
                          .bounceBackOnOverdraw = bounceBackOnLeftOverdraw,
                          .stableDragOnOverdraw = stableDragOnLeftOverdraw}};
    }
};

}  // namespace tarnwick
