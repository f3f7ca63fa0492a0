#include "app/AppDelegate.h"

#include <sys/utsname.h>

#include "app/DeviceModel.h"
#include "app/MainInterface.h"
#include "platform/controllers/Look.h"
#include "platform/controllers/NavigationBar.h"
#include "platform/desktop/IdleTimer.h"
#include "platform/windows/Window.h"
#include "screens/ScreenStyle.h"

namespace tarnwick {

namespace {

constexpr int titleSize = 21;  // points

QFont titleFont() {
    QFont font("Helvetica");
    font.setWeight(QFont::Light);
    font.setPixelSize(titleSize);
    return font;
}

void setNavigationBarLook() {
    NavigationBarLook& look = NavigationBarLook::ofApplication();
    look.barTint = programBlue();
    look.itemTint = Qt::white;
    look.titleColor = Qt::white;
    look.titleShadowColor = QColor::fromRgbF(0, 0, 0, 0.8F);
    look.titleShadowOffset = {0, 0};
    look.titleFont = titleFont();
}

struct QuickAction {
    const char* type;
    void (AppDelegate::*launch)();
};

constexpr QuickAction quickActions[] = {
    {"com.fenlow.tarnwick2.save", &AppDelegate::launchSaveCydia},
    {"com.fenlow.tarnwick2.save-all", &AppDelegate::launchSaveAll},
    {"com.fenlow.tarnwick2.restore", &AppDelegate::launchViewControllerRestore},
    {"com.fenlow.tarnwick2.options", &AppDelegate::launchViewControllerOptions},
};

// The models whose home screen had quick actions when they were made.
bool hasQuickActions(const std::optional<std::string>& model) {
    return model == "iPhone 6s" || model == "iPhone 6s Plus";
}

}  // namespace

bool AppDelegate::applicationDidFinishLaunchingWithOptions(const LaunchOptions& options) {
    setIdleTimerDisabled(&window_);
    Look::setTint(programBlue());
    setNavigationBarLook();
    routeLaunch(options);
    return true;
}

void AppDelegate::applicationDidEnterBackground() {
    window_.modalPresentation().cutShort(
        [&services = services_] { services.runner.run("/usr/bin/killall RootTarnwick2"); });
}

std::optional<std::string> AppDelegate::platformType() const {
    utsname system = {};
    return ::uname(&system) == 0 ? platformTypeOf(system.machine) : std::nullopt;
}

void AppDelegate::routeLaunch(const LaunchOptions& options) {
    if (!hasQuickActions(platformType()))
        return;
    if (!options.shortcutItem) {
        services_.log.write("We've launched properly.");
        return;
    }
    services_.log.write("We've launched from shortcut item: " +
                        options.shortcutItem->localizedTitle);
    perform(*options.shortcutItem);
}

void AppDelegate::applicationPerformActionForShortcutItem(const ShortcutItem& item,
                                                          std::function<void(bool)>) {
    services_.log.write("A shortcut item was pressed. It was " + item.localizedTitle + ".");
    perform(item);
}

void AppDelegate::perform(const ShortcutItem& item) {
    for (const QuickAction& action : quickActions)
        if (item.type == action.type)
            (this->*action.launch)();
}

void AppDelegate::showScreen(const char* scene) {
    window_.setRootViewController(loadMainStoryboard(services_)->instantiateViewController(scene));
    window_.makeKeyAndVisible();
}

void AppDelegate::launchViewControllerRestore() {
    showScreen("restoreNC");
}

void AppDelegate::launchViewControllerOptions() {
    showScreen("optionsNC");
}

void AppDelegate::launchSaveCydia() {
    showScreen("backupNC");
    saves_.saveCydia();
}

void AppDelegate::launchSaveAll() {
    showScreen("backupNC");
    saves_.saveAll();
}

}  // namespace tarnwick
