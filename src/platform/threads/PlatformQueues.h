#pragma once

#include <QObject>
#include <condition_variable>
#include <mutex>

#include "core/TaskQueues.h"

namespace tarnwick {

// The queues of a running application, whose main thread goes before the others. Made and destroyed
// on the main thread; its operations may be called on any thread. The destructor waits for the
// threads that it started: what they refer to must outlive it, and their waiting hand-overs are
// still served.
class PlatformQueues : public QObject, public TaskQueues {
    Q_OBJECT

public:
    PlatformQueues();
    ~PlatformQueues() override;

    void runInBackground(Task task) override;
    // On the main thread itself the task runs at once: waiting for oneself would never end.
    void performOnMainThreadAndWait(Task task) override;
    // A thread of its own as well: there are never more than a few.
    void dispatchToGlobalQueue(Task task) override;
    void dispatchToMainQueue(Task task) override;

private:
    void startThread(Task task);

    const int usualNiceness_;
    std::mutex guard_;  // of what follows
    std::condition_variable ended_;
    int running_ = 0;  // threads
};

}  // namespace tarnwick
