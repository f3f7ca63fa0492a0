#pragma once

#include <QColor>
#include <QFont>
#include <QObject>
#include <QPointF>
#include <QString>
#include <QtQmlIntegration>
#include <functional>

namespace tarnwick {

// The height of every navigation bar, in points.
constexpr double navigationBarHeight = 44.0;

// A button of a navigation bar. The scene declares it with its title and symbol, the controller
// sets its action. Main thread.
class BarButtonItem : public QObject {
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(QString title MEMBER title_ NOTIFY changed)
    Q_PROPERTY(QString symbol MEMBER symbol_ NOTIFY changed)
    Q_PROPERTY(bool hasAction READ hasAction NOTIFY changed)

public:
    using QObject::QObject;

    // Until an action is set, a press does nothing and no bar shows the button.
    void setAction(std::function<void()> action);
    bool hasAction() const { return action_ != nullptr; }
    Q_INVOKABLE void press() const;

signals:
    void changed();

private:
    QString title_;   // drawn if there is no symbol; always the accessible name
    QString symbol_;  // of SymbolView
    std::function<void()> action_;
};

// How the application's navigation bars look. A bar takes the values that are set when it is
// created.
struct NavigationBarLook {
    QColor barTint = Qt::white;
    QColor itemTint = Qt::black;
    QColor titleColor = Qt::black;
    QFont titleFont;
    QColor titleShadowColor = Qt::transparent;
    QPointF titleShadowOffset;

    // The application's own look, owned by the application object. Main thread.
    static NavigationBarLook& ofApplication();
};

}  // namespace tarnwick
