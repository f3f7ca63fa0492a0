#include "platform/threads/MainThread.h"

#include <QCoreApplication>
#include <QThread>
#include <utility>

namespace tarnwick {

void performLaterOnMainThread(QObject* owner, std::function<void()> task) {
    QMetaObject::invokeMethod(owner, std::move(task), Qt::QueuedConnection);
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
