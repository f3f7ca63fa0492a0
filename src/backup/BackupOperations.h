#pragma once

#include <string>

#include "core/TaskOperations.h"

namespace tarnwick {

// The tasks of the Backup screen: each shows the HUD, works, hides the HUD and reports the result.
// Only the existence of the archives counts as success, so an older one will do.
class BackupOperations : public TaskOperations {
public:
    using TaskOperations::TaskOperations;

    // One for each button. The operations must outlive them.
    NamedActions actions();

    // Creates the safeguard folders that are missing. A failure is not reported.
    void ensureSafeguardFolders();

    // Main thread, which they block. They always report success.
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
    void showDone(const std::string& title);
    bool showErrorIfMissing(const BackupArchive& archive);
    void showResult(const BackupItem& item);
};

}  // namespace tarnwick
