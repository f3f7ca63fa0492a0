#pragma once

#include "platform/gestures/PanGestureRecognizer.h"

namespace tarnwick {

// A drag that is mainly horizontal; what moves vertically first is left to the screen's scrolling.
class RevealViewControllerPanGestureRecognizer : public PanGestureRecognizer {
    Q_OBJECT

public:
    using PanGestureRecognizer::PanGestureRecognizer;

protected:
    void touchBegan(const Touch& touch) override;
    void touchMoved(const Touch& touch) override;

private:
    bool dragging_ = false;
};

}  // namespace tarnwick
