#pragma once

#include <QDBusConnection>
#include <QDBusPendingCallWatcher>
#include <QDBusVariant>
#include <QMap>
#include <QObject>
#include <QPointer>
#include <QVariantMap>

namespace tarnwick {

// Makes the font, the text size and the preference for light or dark that the person has chosen for
// the desktop those of the application, now and whenever they change. The portal of the session is
// asked, as it answers whoever is on the bus, whatever the environment holds. Without it, font and
// palette stay as the toolkit found them. Main thread.
class DesktopSettings : public QObject {
    Q_OBJECT

public:
    // Asks, and does not wait.
    DesktopSettings();

    // Uses the answer if it has come. It is used in a later turn of the loop anyway; before the
    // first frame, this spares a change on the screen.
    void takeAnswer();

private slots:
    void settingChanged(const QString& group, const QString& key, const QDBusVariant& value);

private:
    void apply() const;

    QDBusConnection bus_;
    const bool isDarkOtherwise_;
    QPointer<QDBusPendingCallWatcher> answer_;  // until it is taken
    QMap<QString, QVariantMap> settings_;       // by group and key
};

}  // namespace tarnwick
