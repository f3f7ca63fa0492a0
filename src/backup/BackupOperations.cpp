#include "backup/BackupOperations.h"

#include <algorithm>
#include <vector>

#include "backup/SavingWork.h"
#include "core/SafeguardPaths.h"

namespace tarnwick {

NamedActions BackupOperations::actions() {
    NamedActions actions = {
        {"saveSources", [this] { saveSources(); }},
        {"savePackages", [this] { savePackages(); }},
        {"saveAllInOne", [this] { saveAllInOne(); }},
    };
    for (const BackupItem& item : catalogue_)
        actions["save" + item.key] = [this, &item] { save(item); };
    return actions;
}

void BackupOperations::ensureSafeguardFolders() {
    std::vector<std::string_view> missing;
    for (const std::string_view folder : paths::safeguardFolders)
        if (!files_.exists(folder))
            missing.push_back(folder);
    for (const std::string_view folder : missing)
        changes_.createDirectory(folder);
}

void BackupOperations::saveSources() {
    showBackupHud();
    saveSourceLists(files_, changes_);
    feedback_.hideHud();
    showDone("Cydia Sources Backup");
}

void BackupOperations::savePackages() {
    showBackupHud();
    savePackageSelections(runner_);
    feedback_.hideHud();
    showDone("Cydia Packages Backup");
}

void BackupOperations::save(const BackupItem& item) {
    showBackupHud();
    queues_.runInBackground([this, &item] { doSave(item); });
}

void BackupOperations::doSave(const BackupItem& item) {
    feedback_.working(item);
    archiveItem(item, item.saveCommands, runner_, changes_);
    hideHudOnMainThread();
    showResult(item);
}

void BackupOperations::saveAllInOne() {
    showBackupHud();
    queues_.runInBackground([this] { doSaveAllInOne(); });
}

void BackupOperations::doSaveAllInOne() {
    for (const BackupItem& item : catalogue_) {
        feedback_.working(item);
        archiveItem(item, item.allInOneSaveCommands, runner_, changes_);
    }
    for (const BackupItem& item : catalogue_)
        for (const BackupArchive& archive : item.archives)
            showErrorIfMissing(archive);
    // The error alerts are shown while the HUD is still up.
    hideHudOnMainThread();
    showDone("All in One Backup");
}

void BackupOperations::showBackupHud() {
    feedback_.showHud("Backup in progress...");
}

void BackupOperations::showDone(const std::string& title) {
    feedback_.show({.title = title, .message = "Backup done !"});
}

bool BackupOperations::showErrorIfMissing(const BackupArchive& archive) {
    if (files_.exists(archive.path))
        return false;
    feedback_.show(
        {.title = archive.errorTitle, .message = archive.errorMessage, .kind = AlertKind::Problem});
    return true;
}

void BackupOperations::showResult(const BackupItem& item) {
    // Only the first missing archive is reported; those after it are not tested.
    const bool isMissing = std::ranges::any_of(item.archives, [this](const BackupArchive& archive) {
        return showErrorIfMissing(archive);
    });
    if (!isMissing)
        showDone(item.successTitle);
}

}  // namespace tarnwick
