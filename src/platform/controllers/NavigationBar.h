#pragma once

#include <QColor>
#include <QFont>
#include <QObject>
#include <QPointF>
#include <QString>
#include <QtQmlIntegration>
#include <functional>
#include <utility>

namespace tarnwick {

// The height that a navigation bar takes, in points, on any screen.
constexpr double navigationBarHeight = 44.0;

// A button of a navigation bar. A scene declares it with its words and its symbol; who uses it
// gives it its action. Main thread.
class BarButtonItem : public QObject {
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(QString title MEMBER title_ NOTIFY wordsChanged)
    Q_PROPERTY(QString symbol MEMBER symbol_ NOTIFY wordsChanged)

public:
    using QObject::QObject;

    // Nothing happens while there is none.
    void setAction(std::function<void()> action) { action_ = std::move(action); }
    Q_INVOKABLE void press() const;

signals:
    void wordsChanged();

private:
    QString title_;   // what it is called; drawn if there is no symbol
    QString symbol_;  // of SymbolView
    std::function<void()> action_;
};

// How the navigation bars of the application look; a bar takes what is set when it is made.
struct NavigationBarLook {
    QColor barTint = Qt::white;
    QColor itemTint = Qt::black;
    QColor titleColor = Qt::black;
    QFont titleFont;
    QColor titleShadowColor = Qt::transparent;
    QPointF titleShadowOffset;

    // The application's own look, which belongs to the application object. Main thread.
    static NavigationBarLook& ofApplication();
};

}  // namespace tarnwick
