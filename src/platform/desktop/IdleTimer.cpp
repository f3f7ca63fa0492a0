#include "platform/desktop/IdleTimer.h"

#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QGuiApplication>
#include <QWindow>
#include <optional>
#include <utility>

#include "platform/desktop/SessionBus.h"

namespace tarnwick {

namespace {

QDBusMessage call(const char* method) {
    return QDBusMessage::createMethodCall("org.freedesktop.ScreenSaver",
                                          "/org/freedesktop/ScreenSaver",
                                          "org.freedesktop.ScreenSaver", method);
}

// Holds the desktop's promise while the window is active.
class Inhibition : public QObject {
public:
    explicit Inhibition(QWindow* window) : QObject(window), window_(window) {
        connect(window, &QWindow::activeChanged, this, &Inhibition::follow);
        follow();
    }

private:
    void follow() {
        if (!sessionBus().isConnected())
            return;
        if (window_->isActive() && !isAsked_)
            inhibit();
        else if (!window_->isActive() && cookie_)
            release();
    }

    void inhibit() {
        isAsked_ = true;
        auto message = call("Inhibit");
        message << QGuiApplication::applicationDisplayName() << QStringLiteral("In front");
        auto* answer = new QDBusPendingCallWatcher(sessionBus().asyncCall(message), this);
        connect(answer, &QDBusPendingCallWatcher::finished, this, [this, answer] {
            answer->deleteLater();
            const QDBusPendingReply<uint> cookie = *answer;
            isAsked_ = cookie.isValid();
            if (!isAsked_)
                return;  // a desktop without the service; asked again when the window comes back
            cookie_ = cookie.value();
            if (!window_->isActive())
                release();
        });
    }

    void release() {
        isAsked_ = false;
        auto message = call("UnInhibit");
        message << *std::exchange(cookie_, std::nullopt);
        sessionBus().asyncCall(message);
    }

    QWindow* window_;
    bool isAsked_ = false;  // also while there is no answer yet
    std::optional<uint> cookie_;
};

}  // namespace

void setIdleTimerDisabled(QWindow* window) {
    // The bus is asked once the first frame is there.
    QMetaObject::invokeMethod(
        window, [window] { new Inhibition(window); }, Qt::QueuedConnection);
}

}  // namespace tarnwick
