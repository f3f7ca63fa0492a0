#pragma once

#include <functional>
#include <string>
#include <vector>

#include "core/CommandRunner.h"
#include "core/Feedback.h"
#include "core/FileManager.h"
#include "core/ItemCatalogue.h"
#include "core/TaskQueues.h"

namespace tarnwick {

// The tasks of the Backup screen: each shows the HUD, works, hides the HUD and tells the result.
// Success is judged by the archives alone, so an older one counts too. Must outlive the tasks that
// it started.
class BackupOperations {
public:
    BackupOperations(const ItemCatalogue& catalogue, CommandRunner& runner, FileManager& files,
                     Feedback& feedback, TaskQueues& queues);

    // Makes those of the four safeguard folders that are missing. A failure is not told.
    void ensureSafeguardFolders();

    // Main thread, which they block. They always tell success.
    void saveSources();
    void savePackages();

    // Main thread; the work goes to a background thread of its own.
    void save(const BackupItem& item);
    void saveAllInOne();

    // The work of the two above, for a background thread.
    void doSave(const BackupItem& item);
    void doSaveAllInOne();

private:
    void showBackupHud();
    void hideBackupHud();
    void hideBackupHudOnMainThread();
    void showDone(const std::string& title);
    bool showErrorUnlessArchived(const BackupItem& item, std::size_t archive);
    void showResult(const BackupItem& item);

    const ItemCatalogue& catalogue_;
    CommandRunner& runner_;
    FileManager& files_;
    Feedback& feedback_;
    TaskQueues& queues_;
};

// A button of the Backup screen calls its action by name.
struct BackupAction {
    std::string name;  // such as "saveAccounts"
    std::function<void(BackupOperations&)> run;
};

// In the order of the buttons: sources, packages, all in one, then one for each item. The catalogue
// must outlive the actions.
std::vector<BackupAction> backupActions(const ItemCatalogue& catalogue);

}  // namespace tarnwick
