#pragma once

#include <string_view>

#include "core/Alert.h"
#include "core/ItemCatalogue.h"

namespace tarnwick {

// How a task reports: on a screen, or on a terminal. A seam, so that tests see the order of events.
class Feedback {
public:
    virtual ~Feedback() = default;

    // Covers the screen with a busy indicator that bears the label. Main thread.
    virtual void showHud(std::string_view label) = 0;
    // Hides the indicator shown last. Main thread.
    virtual void hideHud() = 0;
    // Shows the alert and returns at once. Any thread; alerts appear in the order of the calls.
    virtual void show(const Alert& alert) = 0;
    // The task now works on this item. The thread of the task.
    virtual void working(const BackupItem&) {}
};

}  // namespace tarnwick
