#include "platform/SessionApplication.h"

#include <QDBusAbstractAdaptor>
#include <QDBusConnectionInterface>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QRegularExpression>
#include <utility>

namespace tarnwick {

namespace {

constexpr char interfaceName[] = "org.freedesktop.Application";
constexpr int patience = 5000;  // milliseconds
// What a desktop hands on so that a window may come to the front: its name on the bus, and the
// variable that the toolkit takes it from.
constexpr std::pair<const char*, const char*> startTokens[] = {
    {"activation-token", "XDG_ACTIVATION_TOKEN"}, {"desktop-startup-id", "DESKTOP_STARTUP_ID"}};

// Without an address the library would start a bus of its own.
QDBusConnection sessionBus() {
    return qEnvironmentVariableIsEmpty("DBUS_SESSION_BUS_ADDRESS") ? QDBusConnection(QString())
                                                                   : QDBusConnection::sessionBus();
}

QString objectPath(const QString& id) {
    return '/' + QString(id).replace('.', '/').replace('-', '_');
}

bool isPlain(const QString& name) {
    static const QRegularExpression plain("^[A-Za-z0-9-]{1,64}$");
    return plain.match(name).hasMatch();
}

bool isToken(const QString& text) {
    static const QRegularExpression token("^[A-Za-z0-9._:/+=@ -]{1,256}$");
    return token.match(text).hasMatch();
}

QVariantMap tokensOfThisStart() {
    QVariantMap data;
    for (const auto& [name, variable] : startTokens)
        if (const QString token = qEnvironmentVariable(variable); isToken(token))
            data[name] = token;
    return data;
}

void takeTokens(const QVariantMap& data) {
    for (const auto& [name, variable] : startTokens)
        if (const QString token = data.value(name).toString(); isToken(token))
            qputenv(variable, token.toUtf8());
}

}  // namespace

// What others of the session call. The names are the interface's own.
class ApplicationInterface : public QDBusAbstractAdaptor {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.Application")

public:
    explicit ApplicationInterface(SessionApplication& application)
        : QDBusAbstractAdaptor(&application), application_(application) {}

public slots:
    void Activate(const QVariantMap& platform_data, const QDBusMessage& call) {
        application_.serve(call, [this, platform_data] {
            takeTokens(platform_data);
            emit application_.activated();
        });
    }

    // There is nothing that the program opens: it only comes to the front.
    void Open(const QStringList& uris, const QVariantMap& platform_data, const QDBusMessage& call) {
        static_cast<void>(uris);
        Activate(platform_data, call);
    }

    void ActivateAction(const QString& action_name, const QVariantList& parameter,
                        const QVariantMap& platform_data, const QDBusMessage& call) {
        static_cast<void>(parameter);
        if (!isPlain(action_name)) {
            application_.refuse(call, QDBusError::InvalidArgs, "No name of an action.");
            return;
        }
        application_.serve(call, [this, action_name, platform_data] {
            takeTokens(platform_data);
            emit application_.actionActivated(action_name);
        });
    }

private:
    SessionApplication& application_;
};

SessionApplication::SessionApplication(const QString& id, uid_t user)
    : id_(id), user_(user), bus_(sessionBus()) {
    if (!bus_.isConnected())
        return;
    new ApplicationInterface(*this);
    // Calls may come as soon as the id is taken.
    bus_.registerObject(objectPath(id_), this, QDBusConnection::ExportAdaptors);
    const QDBusReply<QDBusConnectionInterface::RegisterServiceReply> reply =
        bus_.interface()->registerService(id_, QDBusConnectionInterface::DontQueueService,
                                          QDBusConnectionInterface::DontAllowReplacement);
    isRunningElsewhere_ =
        reply.isValid() && reply.value() == QDBusConnectionInterface::ServiceNotRegistered;
}

bool SessionApplication::handOver(const std::optional<QString>& action) const {
    auto call = QDBusMessage::createMethodCall(id_, objectPath(id_), interfaceName,
                                               action ? "ActivateAction" : "Activate");
    if (action)
        call << *action << QVariantList();
    call << tokensOfThisStart();
    return bus_.call(call, QDBus::Block, patience).type() == QDBusMessage::ReplyMessage;
}

void SessionApplication::serve(const QDBusMessage& call, std::function<void()> task) {
    call.setDelayedReply(true);
    auto* answer = new QDBusPendingCallWatcher(
        bus_.interface()->asyncCall("GetConnectionUnixUser", call.service()), this);
    connect(answer, &QDBusPendingCallWatcher::finished, this,
            [this, answer, call, task = std::move(task)] {
                answer->deleteLater();
                const QDBusPendingReply<uint> caller = *answer;
                if (caller.isError() || !mayCall(caller.value())) {
                    refuse(call, QDBusError::AccessDenied, "Only the session's user may call.");
                    return;
                }
                bus_.send(call.createReply());
                task();
            });
}

void SessionApplication::refuse(const QDBusMessage& call, QDBusError::ErrorType error,
                                const char* reason) {
    call.setDelayedReply(true);
    bus_.send(call.createErrorReply(error, reason));
}

}  // namespace tarnwick

#include "SessionApplication.moc"
