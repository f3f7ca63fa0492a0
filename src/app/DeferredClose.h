#pragma once

#include <QObject>
#include <QPointer>
#include <QQuickItem>

#include "platform/windows/Window.h"
#include "screens/TasksUnderWay.h"

namespace tarnwick {

// A window that is closed while tasks are under way stays, says so, and closes when they are done
// and their alerts have been answered: nothing works on out of sight. Main thread.
class DeferredClose : public QObject {
    Q_OBJECT

public:
    // Both outlive it.
    DeferredClose(Window& window, TasksUnderWay& tasks);

    // The window is wanted again.
    void cancel();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void await();
    void closeIfDone();

    Window& window_;
    TasksUnderWay& tasks_;
    QPointer<QQuickItem> banner_;  // while the window is to be closed
};

}  // namespace tarnwick
