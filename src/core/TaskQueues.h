#pragma once

#include <functional>

namespace tarnwick {

// Where the steps of a task run. A seam: a window has threads, a terminal runs everything in place,
// and tests step through every possible order. What a task refers to must outlive it.
class TaskQueues {
public:
    using Task = std::function<void()>;

    virtual ~TaskQueues() = default;

    // A new background thread for each call.
    virtual void runInBackground(Task task) = 0;
    // Returns when the main thread has run it.
    virtual void performOnMainThreadAndWait(Task task) = 0;
    // The global queue of high priority.
    virtual void dispatchToGlobalQueue(Task task) = 0;
    // The main queue: tasks run on the main thread, one after another, in the order of dispatch.
    virtual void dispatchToMainQueue(Task task) = 0;
};

}  // namespace tarnwick
