#pragma once

#include <sys/types.h>

#include <QDBusConnection>
#include <QDBusMessage>
#include <QObject>
#include <QVariantMap>
#include <functional>
#include <optional>

namespace tarnwick {

// The program as its session knows it: one at a time, under an id on the session bus, where
// desktops, phone shells and later starts of the program reach it. Calls of the session's user and
// of root are heard, and no others'. Without a bus it is alone. Main thread.
class SessionApplication : public QObject {
    Q_OBJECT

public:
    // Offers itself under the id, unless a program of the session has it.
    SessionApplication(const QString& id, uid_t user);

    // Another program has the id: nothing will be heard here.
    bool isRunningElsewhere() const { return isRunningElsewhere_; }
    enum class Answer {
        Done,
        Finishing,  // it has been closed, and does what it was doing to the end
        None        // within a few seconds
    };
    // Has that program come to the front, or do one of its actions.
    Answer handOver(const std::optional<QString>& action) const;

signals:
    // The program is to come to the front.
    void activated();
    // One of its actions was chosen. Of the name it is known only that it is short and plain.
    void actionActivated(const QString& name);

private:
    friend class ApplicationInterface;

    // Does the task and answers, or answers that the caller has no right to it.
    void serve(const QDBusMessage& call, std::function<void()> task);
    void refuse(const QDBusMessage& call, QDBusError::ErrorType error, const char* reason);
    bool mayCall(uint user) const { return user == user_ || user == 0; }

    const QString id_;
    const uid_t user_;
    QDBusConnection bus_;
    bool isRunningElsewhere_ = false;
};

}  // namespace tarnwick
