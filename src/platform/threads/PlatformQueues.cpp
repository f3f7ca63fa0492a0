#include "platform/threads/PlatformQueues.h"

#include <sys/resource.h>

#include <QCoreApplication>
#include <chrono>
#include <latch>
#include <thread>
#include <utility>

#include "platform/threads/MainThread.h"

namespace tarnwick {

namespace {

constexpr int mainThreadNiceness = -10;

PlatformQueues* queuesOfApplication = nullptr;

}  // namespace

PlatformQueues::PlatformQueues() : usualNiceness_(getpriority(PRIO_PROCESS, 0)) {
    // The interface stays responsive while commands keep every core busy. Without the privilege to
    // raise it, the priority stays as it is.
    setpriority(PRIO_PROCESS, 0, mainThreadNiceness);
    queuesOfApplication = this;
}

PlatformQueues::~PlatformQueues() {
    // Also what the last thread dispatched; that may start another one.
    bool wasIdle = false;
    do {
        wasIdle = isIdleSoon();
        QCoreApplication::sendPostedEvents(this, QEvent::MetaCall);
    } while (!wasIdle || !isIdleSoon());
    queuesOfApplication = nullptr;
}

PlatformQueues& PlatformQueues::ofApplication() {
    Q_ASSERT_X(queuesOfApplication != nullptr, "PlatformQueues", "The program has no queues.");
    return *queuesOfApplication;
}

bool PlatformQueues::isIdleSoon() {
    using namespace std::chrono_literals;
    std::unique_lock lock(guard_);
    return ended_.wait_for(lock, 10ms, [this] { return running_ == 0; });
}

void PlatformQueues::startThread(Task task) {
    const std::lock_guard lock(guard_);
    ++running_;
    std::thread([this, task = std::move(task)]() mutable {
        // Threads and the commands that they run keep the usual priority.
        setpriority(PRIO_PROCESS, 0, usualNiceness_);
        std::exchange(task, nullptr)();
        const std::lock_guard done(guard_);
        --running_;
        ended_.notify_all();
    }).detach();
}

void PlatformQueues::runInBackground(Task task) {
    startThread(std::move(task));
}

void PlatformQueues::performOnMainThreadAndWait(Task task) {
    if (isMainThread()) {
        task();
        return;
    }
    std::latch done(1);
    performLaterOnMainThread(this, [&task, &done] {
        task();
        done.count_down();
    });
    done.wait();
}

void PlatformQueues::dispatchToGlobalQueue(Task task) {
    startThread(std::move(task));
}

void PlatformQueues::dispatchToMainQueue(Task task) {
    performLaterOnMainThread(this, std::move(task));
}

}  // namespace tarnwick
