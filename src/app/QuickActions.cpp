// The quick actions of the home screen, and what AppDelegate does for each of them.
#include "app/QuickActions.h"

#include <QSettings>

#include "app/AppDelegate.h"
#include "app/MainInterface.h"
#include "backup/SavingWork.h"
#include "platform/windows/Window.h"

namespace tarnwick {

namespace {

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

ShortcutItem shortcutItem(const QString& action) {
    const QSettings desktopEntry(":/com.fenlow.tarnwick2.desktop", QSettings::IniFormat);
    const QVariant title = desktopEntry.value("Desktop Action " + action + "/Name", action);
    return {.type = applicationId + ("." + action).toStdString(),
            .localizedTitle = title.toString().toStdString()};
}

// An alert without buttons that is up while a save runs. Main thread.
class AppDelegate::ProgressNotice {
public:
    explicit ProgressNotice(AlertPresenter& alerts) : alerts_(alerts) {}

    void show() {
        ticket_ = alerts_.show({.message = "Backup in progress...", .cancelButtonTitle = ""});
    }
    void dismiss() { alerts_.dismiss(ticket_, noCancelButton, Animated::Yes); }

private:
    static constexpr int noCancelButton = -1;

    AlertPresenter& alerts_;
    AlertTicket ticket_;
};

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
    const auto notice = std::make_shared<ProgressNotice>(services_.alerts);
    services_.queues.dispatchToGlobalQueue([self = shared_from_this(), notice] {
        TaskQueues& queues = self->services_.queues;
        queues.dispatchToMainQueue([notice] { notice->show(); });
        savePackageSelections(self->services_.runner);
        self->saveSources();
        queues.dispatchToMainQueue([notice] { notice->dismiss(); });
        queues.dispatchToMainQueue([self] { self->showDone("Cydia Backup"); });
    });
}

void AppDelegate::launchSaveAll() {
    showScreen("backupNC");
    const auto notice = std::make_shared<ProgressNotice>(services_.alerts);
    services_.queues.dispatchToGlobalQueue([self = shared_from_this(), notice] {
        TaskQueues& queues = self->services_.queues;
        queues.dispatchToMainQueue([notice] { notice->show(); });
        self->saveAllInOne();
        queues.dispatchToMainQueue([self, notice] {
            notice->dismiss();
            self->showDone("All in One Backup");
        });
    });
}

void AppDelegate::saveSources() {
    saveSourceLists(services_.files);
}

void AppDelegate::saveAllInOne() {
    for (const BackupItem& item : services_.catalogue)
        archiveItem(item, item.allInOneSaveCommands, services_.runner, services_.files);
}

void AppDelegate::showDone(const char* title) {
    services_.alerts.show({.title = title, .message = "Backup done !"});
}

}  // namespace tarnwick
