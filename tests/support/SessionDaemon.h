#pragma once

#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QProcess>

namespace tarnwick::testing {

// The address of the session's bus, which is the process's own and lives as long: the toolkit
// remembers the first that it talks to. Empty if dbus-daemon is not installed.
inline QString sessionDaemon() {
    static const QString address = [] {
        auto* daemon = new QProcess(QCoreApplication::instance());
        daemon->start("dbus-daemon", {"--session", "--nofork", "--print-address"});
        daemon->waitForReadyRead();
        const QByteArray line = daemon->readLine().trimmed();
        qputenv("DBUS_SESSION_BUS_ADDRESS", line);
        return QString::fromUtf8(line);
    }();
    return address;
}

}  // namespace tarnwick::testing
