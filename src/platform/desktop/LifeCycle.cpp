#include "platform/desktop/LifeCycle.h"

#include <QCoreApplication>
#include <QEvent>
#include <QGuiApplication>
#include <chrono>

namespace tarnwick {

namespace {

// The toolkit takes a window to be unexposed as soon as a frame is a tenth of a second late, as it
// may be under a busy compositor. Only what lasts from one check to the next counts.
constexpr std::chrono::seconds frameCheckInterval(1);
constexpr int checksUntilHidden = 2;

// Elsewhere a window that is not exposed may merely lie under another one.
bool exposureFollowsFrames() {
    return QGuiApplication::platformName().startsWith(QLatin1String("wayland"));
}

}  // namespace

LifeCycle::LifeCycle(QQuickWindow& window, ApplicationDelegate& delegate)
    : window_(window), delegate_(delegate), wasShown_(window.isVisible()) {
    connect(&window, &QWindow::activeChanged, this, &LifeCycle::followFocus);
    connect(&window, &QWindow::visibilityChanged, this, &LifeCycle::followVisibility);
    connect(QCoreApplication::instance(), &QCoreApplication::aboutToQuit, this,
            [this] { delegate_.applicationWillTerminate(); });
    connect(&frameCheck_, &QTimer::timeout, this, &LifeCycle::followFrames);
    window.installEventFilter(this);
}

bool LifeCycle::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::Close)
        closing_ = true;
    const bool isFirstFrame =
        event->type() == QEvent::Expose && window_.isExposed() && !frameCheck_.isActive();
    if (isFirstFrame && exposureFollowsFrames())
        frameCheck_.start(frameCheckInterval);
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
    if (wasShown_)
        setHidden(hidden);
}

// A window with the focus is in front, even if it gets no frames: the screen may be off.
void LifeCycle::followFrames() {
    const bool seen = window_.isExposed() || window_.isActive();
    checksWithoutFrame_ = seen ? 0 : checksWithoutFrame_ + 1;
    if (seen || checksWithoutFrame_ >= checksUntilHidden)
        setHidden(!seen);
    // Unless it draws, a window does not notice that it is asked for no more frames.
    if (!window_.isActive())
        window_.update();
}

void LifeCycle::setHidden(bool hidden) {
    if (closing_ || hidden == inBackground_)
        return;
    inBackground_ = hidden;
    if (inBackground_)
        delegate_.applicationDidEnterBackground();
    else
        delegate_.applicationWillEnterForeground();
}

}  // namespace tarnwick
