#pragma once

#include <QObject>
#include <functional>

namespace tarnwick {

// Work for the main thread. Both may be called on any thread once the application object exists.

// Runs the task on the main thread in a later turn of its loop, in the order of the calls. Nothing
// happens if the object that it belongs to is gone by then.
void performLaterOnMainThread(QObject* owner, std::function<void()> task);

// Runs the task at once on the main thread itself; elsewhere hands it over without waiting.
void performOnMainThread(QObject* owner, std::function<void()> task);

bool isMainThread();

}  // namespace tarnwick
