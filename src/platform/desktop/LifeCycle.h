#pragma once

#include <QObject>
#include <QQuickWindow>
#include <QTimer>
#include <functional>

#include "platform/desktop/ShortcutItem.h"

namespace tarnwick {

// What becomes of an application: told of it on the main thread.
class ApplicationDelegate {
public:
    virtual ~ApplicationDelegate() = default;

    // Before the first frame.
    virtual bool applicationDidFinishLaunchingWithOptions(const LaunchOptions& options) = 0;
    // A quick action was chosen while the application runs. The handler may be called with whether
    // it was done.
    virtual void applicationPerformActionForShortcutItem(
        const ShortcutItem& item, std::function<void(bool)> completionHandler) = 0;
    virtual void applicationWillResignActive() {}
    virtual void applicationDidEnterBackground() {}
    virtual void applicationWillEnterForeground() {}
    virtual void applicationDidBecomeActive() {}
    virtual void applicationWillTerminate() {}
};

// Follows a desktop's or a phone shell's window: it resigns active when it loses the focus, and is
// in the background while it is minimised or hidden. A window that is closed ends the application
// instead. Main thread.
//
// Wayland does not tell a window that it is hidden; at most, its compositor asks it for no more
// frames. There, a window is taken to be hidden when it has had neither frames nor the focus for
// one to two seconds.
class LifeCycle : public QObject {
    Q_OBJECT

public:
    LifeCycle(QQuickWindow& window, ApplicationDelegate& delegate);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void followFocus();
    void followVisibility(QWindow::Visibility visibility);
    void followFrames();
    void setHidden(bool hidden);

    QQuickWindow& window_;
    ApplicationDelegate& delegate_;
    bool active_ = false;
    bool inBackground_ = false;
    bool closing_ = false;
    bool wasShown_;
    QTimer frameCheck_;           // runs on Wayland, from the first frame on
    int checksWithoutFrame_ = 0;  // in succession
};

}  // namespace tarnwick
