#pragma once

#include <QObject>
#include <QQuickItem>
#include <functional>
#include <utility>

namespace tarnwick {

// What a button does when it is pressed. Belongs to the button.
class Action : public QObject {
    Q_OBJECT

public:
    // The button is an item with a signal clicked(). What another action did before is forgotten.
    static void set(QQuickItem* button, std::function<void()> act);

private slots:
    void perform() { act_(); }

private:
    Action(QQuickItem* button, std::function<void()> act);

    std::function<void()> act_;
};

}  // namespace tarnwick
