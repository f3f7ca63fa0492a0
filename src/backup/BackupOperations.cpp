#include "backup/BackupOperations.h"

#include "backup/SavingWork.h"
#include "core/SafeguardPaths.h"

namespace tarnwick {

BackupOperations::BackupOperations(const ItemCatalogue& catalogue, CommandRunner& runner,
                                   FileManager& files, Feedback& feedback, TaskQueues& queues)
    : catalogue_(catalogue), runner_(runner), files_(files), feedback_(feedback), queues_(queues) {}

void BackupOperations::ensureSafeguardFolders() {
    std::vector<std::string_view> missing;
    for (const std::string_view folder : paths::safeguardFolders)
        if (!files_.exists(folder))
            missing.push_back(folder);
    for (const std::string_view folder : missing)
        files_.createDirectory(folder);
}

void BackupOperations::saveSources() {
    showBackupHud();
    saveSourceLists(files_);
    hideBackupHud();
    showDone("Cydia Sources Backup");
}

void BackupOperations::savePackages() {
    showBackupHud();
    savePackageSelections(runner_);
    hideBackupHud();
    showDone("Cydia Packages Backup");
}

void BackupOperations::save(const BackupItem& item) {
    showBackupHud();
    queues_.runInBackground([this, &item] { doSave(item); });
}

void BackupOperations::doSave(const BackupItem& item) {
    feedback_.working(item);
    archiveItem(item, item.saveCommands, runner_, files_);
    hideBackupHudOnMainThread();
    showResult(item);
}

void BackupOperations::saveAllInOne() {
    showBackupHud();
    queues_.runInBackground([this] { doSaveAllInOne(); });
}

void BackupOperations::doSaveAllInOne() {
    for (const BackupItem& item : catalogue_) {
        feedback_.working(item);
        archiveItem(item, item.allInOneSaveCommands, runner_, files_);
    }
    for (const BackupItem& item : catalogue_)
        for (std::size_t archive = 0; archive < item.archivePaths.size(); ++archive)
            showErrorUnlessArchived(item, archive);
    // Only now, with the error alerts shown already.
    hideBackupHudOnMainThread();
    showDone("All in One Backup");
}

void BackupOperations::showBackupHud() {
    feedback_.showHud("Backup in progress...");
}

void BackupOperations::hideBackupHud() {
    feedback_.hideHud();
}

void BackupOperations::hideBackupHudOnMainThread() {
    queues_.performOnMainThreadAndWait([this] { hideBackupHud(); });
}

void BackupOperations::showDone(const std::string& title) {
    feedback_.show({.title = title, .message = "Backup done !"});
}

bool BackupOperations::showErrorUnlessArchived(const BackupItem& item, std::size_t archive) {
    if (files_.exists(item.archivePaths[archive]))
        return false;
    feedback_.show({.title = item.errorTitles[archive],
                    .message = item.errorMessages[archive],
                    .kind = AlertKind::Problem});
    return true;
}

void BackupOperations::showResult(const BackupItem& item) {
    // One alert: the first missing archive is told, and those after it are not tested.
    for (std::size_t archive = 0; archive < item.archivePaths.size(); ++archive)
        if (showErrorUnlessArchived(item, archive))
            return;
    showDone(item.successTitle);
}

std::vector<BackupAction> backupActions(const ItemCatalogue& catalogue) {
    std::vector<BackupAction> actions = {
        {"saveSources", &BackupOperations::saveSources},
        {"savePackages", &BackupOperations::savePackages},
        {"saveAllInOne", &BackupOperations::saveAllInOne},
    };
    for (const BackupItem& item : catalogue)
        actions.push_back(
            {"save" + item.key, [&item](BackupOperations& operations) { operations.save(item); }});
    return actions;
}

}  // namespace tarnwick
