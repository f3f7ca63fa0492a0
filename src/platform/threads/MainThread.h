#pragma once

#include <QCoreApplication>
#include <QObject>
#include <QPointer>
#include <functional>
#include <type_traits>
#include <utility>

namespace tarnwick {

// Runs work on the main thread. Callable on any thread once the application object exists.

// Posts the task to the main thread's event loop; tasks run in the order of the calls. The task is
// dropped if its owner is gone by then.
void performLaterOnMainThread(QObject* owner, std::function<void()> task);

// Runs the task at once on the main thread; on other threads posts it without waiting.
void performOnMainThread(QObject* owner, std::function<void()> task);

// The same for a task that needs an object of the main thread; dropped if the object has been
// deleted by then.
template <class Object>
void performLaterOnMainThread(const QPointer<Object>& object,
                              std::function<void(std::type_identity_t<Object>&)> task) {
    performLaterOnMainThread(QCoreApplication::instance(), [object, task = std::move(task)] {
        if (object)
            task(*object);
    });
}

bool isMainThread();

}  // namespace tarnwick
