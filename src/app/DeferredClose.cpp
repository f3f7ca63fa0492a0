#include "app/DeferredClose.h"

#include <QCloseEvent>

#include "platform/views/QmlEngine.h"

namespace tarnwick {

DeferredClose::DeferredClose(Window& window, TasksUnderWay& tasks)
    : window_(window), tasks_(tasks) {
    window_.installEventFilter(this);
    connect(&tasks_, &TasksUnderWay::changed, this, &DeferredClose::closeIfDone);
    connect(&window_.alerts(), &AlertPresenter::allWentAway, this, &DeferredClose::closeIfDone);
}

bool DeferredClose::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() != QEvent::Close || !tasks_.isAny())
        return QObject::eventFilter(watched, event);
    event->ignore();
    await();
    return true;
}

void DeferredClose::await() {
    if (!banner_)
        banner_ = createQmlItem("Banner", window_.contentItem(), {{"text", "Closes when done"}});
}

void DeferredClose::cancel() {
    delete banner_;
}

void DeferredClose::closeIfDone() {
    if (!banner_ || tasks_.isAny() || window_.alerts().numberShown() > 0)
        return;
    cancel();
    window_.close();
}

}  // namespace tarnwick
