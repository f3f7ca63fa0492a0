#pragma once

#include "core/TaskQueues.h"

namespace tarnwick {

// Runs every task at once on the caller's thread: a terminal needs nothing meanwhile.
class InPlaceQueues : public TaskQueues {
public:
    void runInBackground(Task task) override { task(); }
    void performOnMainThreadAndWait(Task task) override { task(); }
    void dispatchToGlobalQueue(Task task) override { task(); }
    void dispatchToMainQueue(Task task) override { task(); }
};

}  // namespace tarnwick
