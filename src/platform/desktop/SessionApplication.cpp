#include "platform/desktop/SessionApplication.h"

#include <QCoreApplication>
#include <QDBusAbstractAdaptor>
#include <QDBusConnectionInterface>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <utility>

#include "core/StartToken.h"
#include "platform/desktop/SessionBus.h"
#include "platform/desktop/ShortcutItem.h"

namespace tarnwick {

namespace {

constexpr char interfaceName[] = "org.freedesktop.Application";
constexpr int patience = 5000;  // milliseconds
// What a desktop hands on so that a window may come to the front: its name on the bus, and the
// variable that the toolkit takes it from.
constexpr char tokenName[] = "activation-token";
constexpr char tokenVariable[] = "XDG_ACTIVATION_TOKEN";

QString objectPath(const QString& id) {
    return '/' + QString(id).replace('.', '/').replace('-', '_');
}

QVariantMap tokenOfThisStart() {
    const QByteArray token = qgetenv(tokenVariable);
    return isStartToken(token.toStdString()) ? QVariantMap{{tokenName, QString::fromUtf8(token)}}
                                             : QVariantMap();
}

void takeToken(const QVariantMap& data) {
    const std::string token = data.value(tokenName).toString().toStdString();
    if (isStartToken(token))
        qputenv(tokenVariable, QByteArray::fromStdString(token));
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
            takeToken(platform_data);
            emit application_.activated();
        });
    }

    // There is nothing that the program opens: it only comes to the front.
    void Open([[maybe_unused]] const QStringList& uris, const QVariantMap& platform_data,
              const QDBusMessage& call) {
        Activate(platform_data, call);
    }

    void ActivateAction(const QString& action_name, [[maybe_unused]] const QVariantList& parameter,
                        const QVariantMap& platform_data, const QDBusMessage& call) {
        if (!isActionName(action_name.toStdString())) {
            application_.refuse(call, QDBusError::InvalidArgs, "No name of an action.");
            return;
        }
        application_.serve(call, [this, action_name, platform_data] {
            takeToken(platform_data);
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
    // The id is held to the end, as what runs is finished first.
    connect(QCoreApplication::instance(), &QCoreApplication::aboutToQuit, this,
            [this] { bus_.unregisterObject(objectPath(id_)); });
    isRunningElsewhere_ =
        reply.isValid() && reply.value() == QDBusConnectionInterface::ServiceNotRegistered;
}

SessionApplication::Answer SessionApplication::handOver(
    const std::optional<QString>& action) const {
    auto call = QDBusMessage::createMethodCall(id_, objectPath(id_), interfaceName,
                                               action ? "ActivateAction" : "Activate");
    if (action)
        call << *action << QVariantList();
    call << tokenOfThisStart();
    const QDBusMessage answer = bus_.call(call, QDBus::Block, patience);
    if (answer.type() == QDBusMessage::ReplyMessage)
        return Answer::Done;
    return QDBusError(answer).type() == QDBusError::UnknownObject ? Answer::Finishing
                                                                  : Answer::None;
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
