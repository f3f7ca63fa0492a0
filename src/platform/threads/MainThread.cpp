#include "platform/threads/MainThread.h"

#include <QCoreApplication>
#include <QThread>
#include <atomic>
#include <memory>
#include <utility>

namespace tarnwick {

namespace {

// A task on its way to the main thread. What its thread did before is seen by it: said here, as a
// thread sanitizer does not see Qt's own locks.
class HandOver {
public:
    explicit HandOver(std::function<void()> task) : task_(std::move(task)) {
        ready_.store(true, std::memory_order_release);
    }

    void run() {
        while (!ready_.load(std::memory_order_acquire)) {
        }
        std::exchange(task_, nullptr)();
    }

private:
    std::function<void()> task_;
    std::atomic<bool> ready_ = false;
};

// What Qt brings there. The sanitizer is told to overlook the look-up, and nothing else.
class Delivery {
public:
    explicit Delivery(std::function<void()> task)
        : handOver_(std::make_shared<HandOver>(std::move(task))) {}

    void operator()() const { lookUpHandOver().run(); }

private:
    [[gnu::noinline]] HandOver& lookUpHandOver() const { return *handOver_; }

    std::shared_ptr<HandOver> handOver_;
};

}  // namespace

void performLaterOnMainThread(QObject* owner, std::function<void()> task) {
    QMetaObject::invokeMethod(owner, Delivery(std::move(task)), Qt::QueuedConnection);
}

void performOnMainThread(QObject* owner, std::function<void()> task) {
    if (isMainThread())
        task();
    else
        performLaterOnMainThread(owner, std::move(task));
}

bool isMainThread() {
    return QThread::currentThread() == QCoreApplication::instance()->thread();
}

}  // namespace tarnwick
