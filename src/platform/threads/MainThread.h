#pragma once

#include <QObject>
#include <functional>

namespace tarnwick {

// Runs work on the main thread. Callable on any thread once the application object exists.

// Posts the task to the main thread's event loop; tasks run in the order of the calls. The task is
// dropped if its owner is gone by then.
void performLaterOnMainThread(QObject* owner, std::function<void()> task);

// Runs the task at once on the main thread; on other threads posts it without waiting.
void performOnMainThread(QObject* owner, std::function<void()> task);

bool isMainThread();

}  // namespace tarnwick
