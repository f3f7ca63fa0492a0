#include "app/QuickSaves.h"

#include <string>

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

}  // namespace

// An alert without a button. Main thread.
class QuickSaves::Notice {
public:
    Notice(AlertPresenter& alerts, const char* message) : alerts_(alerts), message_(message) {}

    void show() { ticket_ = alerts_.show({.message = message_, .cancelButtonTitle = ""}); }
    void dismiss() { alerts_.dismiss(ticket_, noCancelButton, Animated::Yes); }

private:
    static constexpr int noCancelButton = -1;

    AlertPresenter& alerts_;
    const std::string message_;
    AlertTicket ticket_;
};

namespace {

void showDone(AlertPresenter& alerts, const char* title) {
    alerts.show({.title = title, .message = "Backup done !"});
}

}  // namespace

void QuickSaves::saveCydia() const {
    perform("save packages and sources", [&services = services_](const auto& notice) {
        services.queues.dispatchToMainQueue([notice] { notice->show(); });
        savePackageSelections(services.runner);
        saveSources(services);
        services.queues.dispatchToMainQueue([notice] { notice->dismiss(); });
        services.queues.dispatchToMainQueue(
            [&services] { showDone(services.alerts, "Cydia Backup"); });
    });
}

void QuickSaves::saveAll() const {
    perform("save all in one", [&services = services_](const auto& notice) {
        services.queues.dispatchToMainQueue([notice] { notice->show(); });
        saveAllInOne(services);
        services.queues.dispatchToMainQueue([&services, notice] {
            notice->dismiss();
            showDone(services.alerts, "All in One Backup");
        });
    });
}

void QuickSaves::perform(const char* what, const Work& work) const {
    const auto notice = std::make_shared<Notice>(services_.alerts, "Backup in progress...");
    const auto waiting =
        std::make_shared<Notice>(services_.alerts, "Waiting for another run of Tarnwick to end...");
    services_.gate.perform(
        {.screen = "backup",
         .what = what,
         .task =
             [&queues = services_.queues, work, notice] {
                 queues.dispatchToGlobalQueue(
                     [ticket = TaskGate::currentTicket(), work, notice] { work(notice); });
             },
         .showWaiting = [waiting] { waiting->show(); },
         .hideWaiting = [waiting] { waiting->dismiss(); }});
}

}  // namespace tarnwick
