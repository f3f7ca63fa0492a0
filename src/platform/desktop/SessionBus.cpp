#include "platform/desktop/SessionBus.h"

namespace tarnwick {

QDBusConnection sessionBus() {
    return qEnvironmentVariableIsEmpty("DBUS_SESSION_BUS_ADDRESS") ? QDBusConnection(QString())
                                                                   : QDBusConnection::sessionBus();
}

}  // namespace tarnwick
