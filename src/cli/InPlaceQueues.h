#pragma once

#include "core/TaskQueues.h"

namespace tarnwick {

// A terminal has nothing to keep alive meanwhile: every task runs at once, on the caller's thread.
class InPlaceQueues : public TaskQueues {
public:
    void runInBackground(Task task) override { task(); }
    void performOnMainThreadAndWait(Task task) override { task(); }
    void dispatchToGlobalQueue(Task task) override { task(); }
    void dispatchToMainQueue(Task task) override { task(); }
};

}  // namespace tarnwick
