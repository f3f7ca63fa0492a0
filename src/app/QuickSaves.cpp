#include "app/QuickSaves.h"

#include <memory>

#include "backup/SavingWork.h"

namespace tarnwick {

namespace {

void saveSources(const ScreenServices& services) {
    saveSourceLists(services.files, services.files);
}

void saveAllInOne(const ScreenServices& services) {
    for (const BackupItem& item : services.catalogue)
        archiveItem(item, item.allInOneSaveCommands, services.runner, services.files);
}

// Main thread.
class ProgressNotice {
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

void showDone(AlertPresenter& alerts, const char* title) {
    alerts.show({.title = title, .message = "Backup done !"});
}

}  // namespace

void QuickSaves::saveCydia() const {
    const auto notice = std::make_shared<ProgressNotice>(services_.alerts);
    services_.queues.dispatchToGlobalQueue([&services = services_, notice] {
        services.queues.dispatchToMainQueue([notice] { notice->show(); });
        savePackageSelections(services.runner);
        saveSources(services);
        services.queues.dispatchToMainQueue([notice] { notice->dismiss(); });
        services.queues.dispatchToMainQueue(
            [&services] { showDone(services.alerts, "Cydia Backup"); });
    });
}

void QuickSaves::saveAll() const {
    const auto notice = std::make_shared<ProgressNotice>(services_.alerts);
    services_.queues.dispatchToGlobalQueue([&services = services_, notice] {
        services.queues.dispatchToMainQueue([notice] { notice->show(); });
        saveAllInOne(services);
        services.queues.dispatchToMainQueue([&services, notice] {
            notice->dismiss();
            showDone(services.alerts, "All in One Backup");
        });
    });
}

}  // namespace tarnwick
