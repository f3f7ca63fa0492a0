#pragma once

#include <memory>
#include <optional>
#include <string>

#include "platform/desktop/LifeCycle.h"
#include "screens/ScreenServices.h"

namespace tarnwick {

class Window;

// What the program does at the turns of its life, and the quick actions of the home screen. Main
// thread, but for the two saves. Lives until its saves are done; the window and the services
// outlive it.
class AppDelegate : public ApplicationDelegate, public std::enable_shared_from_this<AppDelegate> {
public:
    AppDelegate(Window& window, const ScreenServices& services)
        : window_(window), services_(services) {}

    // A quick action counts only on the models that had them first.
    bool applicationDidFinishLaunchingWithOptions(const LaunchOptions& options) override;
    // Ends the program: it never stays suspended with its rights.
    void applicationDidEnterBackground() override;
    // Never calls the handler.
    void applicationPerformActionForShortcutItem(
        const ShortcutItem& item, std::function<void(bool)> completionHandler) override;

    // The name that the device is sold under; none if it is of no known family.
    virtual std::optional<std::string> platformType() const;

    // Each puts its screen into the window in place of all that was there. The first two save
    // behind a notice without buttons, and always tell success.
    void launchSaveCydia();
    void launchSaveAll();
    void launchViewControllerRestore();
    void launchViewControllerOptions();

    // The work of these two, for a background thread. Nothing is told.
    void saveSources();
    void saveAllInOne();

private:
    class ProgressNotice;

    void routeLaunch(const LaunchOptions& options);
    void perform(const ShortcutItem& item);
    void showScreen(const char* scene);
    void showDone(const char* title);

    Window& window_;
    const ScreenServices& services_;
};

}  // namespace tarnwick
