#pragma once

#include <QtQml/qqmlregistration.h>

#include <QColor>
#include <QObject>

namespace tarnwick {

// The application's tint and text sizes, in pixels: the only source of both for scenes. Texts grow
// with the font that the user has chosen for the system. Main thread.
class Look : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_SINGLETON
    Q_PROPERTY(QColor tint READ tint CONSTANT)
    Q_PROPERTY(double textScale READ textScale CONSTANT)
    Q_PROPERTY(int headline READ headline CONSTANT)
    Q_PROPERTY(int callout READ callout CONSTANT)
    Q_PROPERTY(int body READ body CONSTANT)

public:
    // The colour of buttons, links and selections: the palette's highlight. The application sets it
    // before it loads its scenes.
    static QColor tint();
    static void setTint(const QColor& color);
    // From 1 for a usual system font up to 2 for larger ones.
    static double textScale();
    static int headline();  // titles of alerts, captions of buttons
    static int callout();   // running text of screens
    static int body();      // messages
};

}  // namespace tarnwick
