#pragma once

#include "platform/gestures/GestureRecognizer.h"

namespace tarnwick {

// A press that did not become a drag, recognised on release. The items below it are not pressed
// then. Main thread.
class TapGestureRecognizer : public GestureRecognizer {
    Q_OBJECT

public:
    using GestureRecognizer::GestureRecognizer;

protected:
    void touchMoved(const Touch& touch) override;
    void touchEnded(const Touch& touch) override;
};

}  // namespace tarnwick
