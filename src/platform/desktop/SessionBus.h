#pragma once

#include <QDBusConnection>

namespace tarnwick {

// The session's bus, not connected if there is none: without an address the library would start a
// bus of its own. Main thread.
QDBusConnection sessionBus();

}  // namespace tarnwick
