#pragma once

#include <QObject>
#include <condition_variable>
#include <mutex>

#include "core/TaskQueues.h"

namespace tarnwick {

// The queues of a running application. Its main thread gets a higher priority than the threads that
// are started here. Created and destroyed on the main thread; callable on any thread. The
// destructor waits for the started threads and still serves their hand-overs; what they refer to
// must outlive it.
class PlatformQueues : public QObject, public TaskQueues {
    Q_OBJECT

public:
    PlatformQueues();
    ~PlatformQueues() override;

    // The one instance that the program has created. Main thread.
    static PlatformQueues& ofApplication();

    void runInBackground(Task task) override;
    // Runs the task at once on the main thread, where waiting would deadlock.
    void performOnMainThreadAndWait(Task task) override;
    // Starts a thread too, as there are never more than a few tasks.
    void dispatchToGlobalQueue(Task task) override;
    void dispatchToMainQueue(Task task) override;

private:
    void startThread(Task task);
    bool isIdleSoon();

    const int usualNiceness_;
    std::mutex guard_;  // guards the members below
    std::condition_variable ended_;
    int running_ = 0;  // number of threads
};

}  // namespace tarnwick
