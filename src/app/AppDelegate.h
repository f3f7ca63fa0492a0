#pragma once

#include <functional>
#include <optional>
#include <string>

#include "app/QuickSaves.h"
#include "platform/desktop/LifeCycle.h"
#include "screens/ScreenServices.h"

namespace tarnwick {

class Window;

// What the program does at the turns of its life, and which quick action leads where. Main thread.
// The window and the services outlive it.
class AppDelegate : public ApplicationDelegate {
public:
    AppDelegate(Window& window, const ScreenServices& services)
        : window_(window), services_(services), saves_(services) {}

    // A quick action counts only on the models that had them first.
    bool applicationDidFinishLaunchingWithOptions(const LaunchOptions& options) override;
    // Ends the program, which never stays suspended with root's rights; first a mail that is being
    // written is kept.
    void applicationDidEnterBackground() override;
    // Never calls the handler.
    void applicationPerformActionForShortcutItem(
        const ShortcutItem& item, std::function<void(bool)> completionHandler) override;

    // The name that the device is sold under; null if it is of no known family.
    virtual std::optional<std::string> platformType() const;

    // Each replaces the content of the window by its screen. The first two also start a save.
    void launchSaveCydia();
    void launchSaveAll();
    void launchViewControllerRestore();
    void launchViewControllerOptions();

private:
    void routeLaunch(const LaunchOptions& options);
    void perform(const ShortcutItem& item);
    void showScreen(const char* scene);

    Window& window_;
    const ScreenServices& services_;
    const QuickSaves saves_;
};

}  // namespace tarnwick
