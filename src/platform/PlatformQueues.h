#pragma once

#include <QObject>
#include <QThreadPool>

#include "core/TaskQueues.h"

namespace tarnwick {

// The queues of a running application. Made and destroyed on the main thread; its operations may be
// called on any thread. The destructor waits for the threads that it started: what they refer to
// must outlive it, and their waiting hand-overs are still served.
class PlatformQueues : public QObject, public TaskQueues {
    Q_OBJECT

public:
    PlatformQueues();
    ~PlatformQueues() override;

    void runInBackground(Task task) override;
    // On the main thread itself the task runs at once: waiting for oneself would never end.
    void performOnMainThreadAndWait(Task task) override;
    void dispatchToGlobalQueue(Task task) override;
    void dispatchToMainQueue(Task task) override;

private:
    void serveUntilIdle();

    // A thread for each call: a pool without a limit starts one whenever all others are busy.
    QThreadPool backgroundThreads_;
    QThreadPool globalQueue_;
};

}  // namespace tarnwick
