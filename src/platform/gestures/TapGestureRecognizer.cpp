#include "platform/gestures/TapGestureRecognizer.h"

namespace tarnwick {

void TapGestureRecognizer::touchMoved(const Touch&) {
    if (isDrag(wayFromStart()))
        fail();
}

void TapGestureRecognizer::touchEnded(const Touch&) {
    end();
}

}  // namespace tarnwick
