#include <QCoreApplication>
#include <QThread>
#include <mutex>
#include <utility>

#include "platform/threads/MainThread.h"

// Qt is not built for the thread sanitizer, which does not see Qt's locks.

// What Qt and other libraries do among themselves is not looked at.
extern "C" const char* __tsan_default_options() {
    return "ignore_noninstrumented_modules=1";
}

// In place of MainThread.cpp: a lock that the sanitizer sees puts what was done before a task was
// posted before the task.
namespace tarnwick {

namespace {

std::mutex handOver;

}  // namespace

void performLaterOnMainThread(QObject* owner, std::function<void()> task) {
    const std::lock_guard posting(handOver);
    const auto run = [task = std::move(task)] {
        handOver.lock();
        handOver.unlock();
        task();
    };
    QMetaObject::invokeMethod(owner, run, Qt::QueuedConnection);
}

void performOnMainThread(QObject* owner, std::function<void()> task) {
    isMainThread() ? task() : performLaterOnMainThread(owner, std::move(task));
}

bool isMainThread() {
    return QThread::currentThread() == QCoreApplication::instance()->thread();
}

}  // namespace tarnwick
