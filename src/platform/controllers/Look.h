#pragma once

#include <QtQml/qqmlregistration.h>

#include <QColor>
#include <QObject>
#include <QString>

namespace tarnwick {

// The application's colours, font and text sizes, in pixels: the only source of them for scenes.
// Colours are light or dark as the application's palette is; texts have the font that the user has
// chosen for the system and grow with it. All of it follows later changes of both. Main thread.
class Look : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_SINGLETON
    Q_PROPERTY(QColor tint READ tint NOTIFY changed)
    Q_PROPERTY(QColor link READ link NOTIFY changed)
    Q_PROPERTY(QColor destructive READ destructive NOTIFY changed)
    Q_PROPERTY(QColor text READ text NOTIFY changed)
    Q_PROPERTY(QColor quietText READ quietText NOTIFY changed)
    Q_PROPERTY(QColor screen READ screen NOTIFY changed)
    Q_PROPERTY(QColor sheet READ sheet NOTIFY changed)
    Q_PROPERTY(QColor panel READ panel NOTIFY changed)
    Q_PROPERTY(QColor separator READ separator NOTIFY changed)
    Q_PROPERTY(QColor mark READ mark NOTIFY changed)
    Q_PROPERTY(QString family READ family NOTIFY changed)
    Q_PROPERTY(double textScale READ textScale NOTIFY changed)
    Q_PROPERTY(int caption READ caption NOTIFY changed)
    Q_PROPERTY(int headline READ headline NOTIFY changed)
    Q_PROPERTY(int callout READ callout NOTIFY changed)
    Q_PROPERTY(int body READ body NOTIFY changed)

public:
    explicit Look(QObject* parent = nullptr);

    // The colour of bars, buttons and selections: the palette's highlight. The application sets it
    // before it loads its scenes.
    static QColor tint();
    static void setTint(const QColor& color);

    static bool isDark();
    static QColor link();         // the tint, so dark or light that text in it can be read
    static QColor destructive();  // answers that take something away
    static QColor text();
    static QColor quietText();  // what explains or names something else
    static QColor screen();     // what texts and buttons stand on, the lowest first
    static QColor sheet();
    static QColor panel();
    static QColor separator();
    static QColor mark();  // of what is scrolled

    static QString family();
    // From 1 for a usual system font up to 2 for larger ones.
    static double textScale();
    static int caption();   // buttons that are filled: bold, it is large text in the sense of WCAG
    static int headline();  // titles of alerts, rows
    static int callout();   // running text of screens
    static int body();      // messages

signals:
    void changed();

protected:
    // Of the application: whether its font or palette changes.
    bool eventFilter(QObject* watched, QEvent* event) override;
};

}  // namespace tarnwick
