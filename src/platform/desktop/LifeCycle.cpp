#include "platform/desktop/LifeCycle.h"

#include <QCoreApplication>
#include <QEvent>

namespace tarnwick {

LifeCycle::LifeCycle(QWindow& window, ApplicationDelegate& delegate)
    : window_(window), delegate_(delegate), wasShown_(window.isVisible()) {
    connect(&window, &QWindow::activeChanged, this, &LifeCycle::followFocus);
    connect(&window, &QWindow::visibilityChanged, this, &LifeCycle::followVisibility);
    connect(QCoreApplication::instance(), &QCoreApplication::aboutToQuit, this,
            [this] { delegate_.applicationWillTerminate(); });
    window.installEventFilter(this);
}

bool LifeCycle::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::Close)
        closing_ = true;
    return QObject::eventFilter(watched, event);
}

void LifeCycle::followFocus() {
    if (window_.isActive() == active_)
        return;
    active_ = window_.isActive();
    if (active_)
        delegate_.applicationDidBecomeActive();
    else
        delegate_.applicationWillResignActive();
}

void LifeCycle::followVisibility(QWindow::Visibility visibility) {
    const bool hidden = visibility == QWindow::Minimized || visibility == QWindow::Hidden;
    wasShown_ = wasShown_ || !hidden;
    if (closing_ || !wasShown_ || hidden == inBackground_)
        return;
    inBackground_ = hidden;
    if (inBackground_)
        delegate_.applicationDidEnterBackground();
    else
        delegate_.applicationWillEnterForeground();
}

}  // namespace tarnwick
