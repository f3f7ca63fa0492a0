#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusVirtualObject>
#include <QElapsedTimer>
#include <QWindow>

#include "platform/desktop/IdleTimer.h"
#include "support/SessionDaemon.h"

namespace tarnwick::testing {
namespace {

// The desktop's service, which writes down how it is called.
class ScreenSaver : public QDBusVirtualObject {
public:
    QString introspect(const QString&) const override { return {}; }
    bool handleMessage(const QDBusMessage& message, const QDBusConnection& bus) override {
        calls +=
            (message.member() + ' ' + message.arguments().last().toString()).toStdString() + ";";
        return bus.send(message.createReply(7U));
    }
    std::string calls;
};

TEST(IdleTimer, TheDesktopIsHeldOffWhileTheWindowIsInFront) {
    ScreenSaver desktop;
    auto bus = QDBusConnection::connectToBus(sessionDaemon(), "desktop");
    ASSERT_TRUE(bus.registerService("org.freedesktop.ScreenSaver"));
    bus.registerVirtualObject("/org/freedesktop/ScreenSaver", &desktop);
    const auto await = [&desktop](const std::string& calls) {
        QElapsedTimer sinceNow;
        sinceNow.start();
        while (desktop.calls.size() < calls.size() && sinceNow.elapsed() < 10000)
            QCoreApplication::processEvents(QEventLoop::AllEvents, 10);
        EXPECT_EQ(desktop.calls, calls);
    };
    QWindow window;
    QWindow other;
    for (QWindow* each : {&window, &other})
        each->show();
    window.requestActivate();
    setIdleTimerDisabled(&window);
    const std::string asked = "Inhibit In front;";
    await(asked);
    other.requestActivate();
    await(asked + "UnInhibit 7;");
    window.requestActivate();
    QCoreApplication::processEvents();
    // Back and forth before there is an answer.
    other.requestActivate();
    QCoreApplication::processEvents();
    window.requestActivate();
    await(asked + "UnInhibit 7;" + asked);
    QDBusConnection::disconnectFromBus("desktop");
}

}  // namespace
}  // namespace tarnwick::testing
