#pragma once

#include <QObject>
#include <QWindow>
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
class LifeCycle : public QObject {
    Q_OBJECT

public:
    LifeCycle(QWindow& window, ApplicationDelegate& delegate);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void followFocus();
    void followVisibility(QWindow::Visibility visibility);

    QWindow& window_;
    ApplicationDelegate& delegate_;
    bool active_ = false;
    bool inBackground_ = false;
    bool closing_ = false;
    bool wasShown_;
};

}  // namespace tarnwick
