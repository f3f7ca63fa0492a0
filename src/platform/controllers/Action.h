#pragma once

#include <QObject>
#include <QQuickItem>
#include <functional>
#include <utility>

namespace tarnwick {

// What a press of a button does. Owned by the button.
class Action : public QObject {
    Q_OBJECT

public:
    // The button is an item with a signal clicked(). A former action of the button is replaced.
    static void set(QQuickItem* button, std::function<void()> act);

private slots:
    void perform() { act_(); }

private:
    Action(QQuickItem* button, std::function<void()> act);

    std::function<void()> act_;
};

}  // namespace tarnwick
