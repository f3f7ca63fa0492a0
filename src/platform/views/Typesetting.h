#pragma once

#include <QtQml/qqmlregistration.h>

#include <QFont>
#include <QObject>
#include <QString>

namespace tarnwick {

// Where lines break, as a typographer would have it. Main thread.
class Typesetting : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_SINGLETON

public:
    // The text as it is drawn, without blanks at the ends of lines, which would put centred ones
    // off, and with invisible characters that guide the breaking of lines: no "?"
    // or "!" begins a line, no word ends a longer paragraph alone, and a path goes on with the
    // slash.
    Q_INVOKABLE static QString prepared(const QString& text);
    // The smallest width, in points, at which the text has as many lines as at this one: its lines
    // are of like length then.
    Q_INVOKABLE static double balancedWidth(const QString& text, const QFont& font, double width);
};

}  // namespace tarnwick
