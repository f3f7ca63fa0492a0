#pragma once

#include <QtQml/qqmlregistration.h>

#include <QColor>
#include <QObject>

namespace tarnwick {

// The program's colour and the sizes of its texts, in pixels: the one place that scenes take them
// from. Texts grow with the font that the person has chosen for the system.
class Look : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_SINGLETON
    Q_PROPERTY(QColor blue READ blue CONSTANT)
    Q_PROPERTY(double textScale READ textScale CONSTANT)
    Q_PROPERTY(int headline READ headline CONSTANT)
    Q_PROPERTY(int callout READ callout CONSTANT)
    Q_PROPERTY(int body READ body CONSTANT)

public:
    static QColor blue();
    // 1 for a system's usual font, up to 2 for larger ones.
    static double textScale();
    static int headline();  // titles of alerts, captions of buttons
    static int callout();   // running text of screens
    static int body();      // messages
};

}  // namespace tarnwick
