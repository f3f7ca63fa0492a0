#include "platform/PlatformQueues.h"

#include <QCoreApplication>
#include <limits>
#include <utility>

#include "platform/MainThread.h"

namespace tarnwick {

PlatformQueues::PlatformQueues() {
    backgroundThreads_.setMaxThreadCount(std::numeric_limits<int>::max());
    // Not kept for reuse: each call gets a new thread.
    backgroundThreads_.setExpiryTimeout(0);
    globalQueue_.setThreadPriority(QThread::HighPriority);
}

PlatformQueues::~PlatformQueues() {
    serveUntilIdle();
}

void PlatformQueues::serveUntilIdle() {
    constexpr int turn = 10;  // milliseconds
    while (!backgroundThreads_.waitForDone(turn) || !globalQueue_.waitForDone(turn))
        QCoreApplication::sendPostedEvents(this, QEvent::MetaCall);
}

void PlatformQueues::runInBackground(Task task) {
    backgroundThreads_.start(std::move(task));
}

void PlatformQueues::performOnMainThreadAndWait(Task task) {
    if (isMainThread())
        task();
    else
        QMetaObject::invokeMethod(this, std::move(task), Qt::BlockingQueuedConnection);
}

void PlatformQueues::dispatchToGlobalQueue(Task task) {
    globalQueue_.start(std::move(task));
}

void PlatformQueues::dispatchToMainQueue(Task task) {
    performLaterOnMainThread(this, std::move(task));
}

}  // namespace tarnwick
