#pragma once

#include <functional>
#include <string>
#include <vector>

#include "core/TaskOperations.h"

namespace tarnwick {

// A folder that can be recreated, and what its choice says.
struct RecreatableFolder {
    std::string buttonTitle;
    std::string path;
    std::string resultTitle;
    std::string resultMessage;
};

// In the order of the choice: the button of the first has index 1.
const std::vector<RecreatableFolder>& recreatableFolders();

// The tools of the Options screen. Each action asks in an alert; the answer does the work.
class OptionsOperations : public TaskOperations {
public:
    // Tags of the alerts. Unscoped, as an alert carries its tag as a number.
    enum Tag : int {
        RecreateFoldersTag = 1,
        FolderChoiceTag = 2,
        RemoveSafeguardTag = 3,
        RespringTag = 4,
        RebootTag = 5,
        RemoveSourcesListTag = 6,
        SizeChoiceTag = 7
    };

    // The answers do the work.
    static constexpr bool actionsOnlyAsk = true;

    using StorageFigures = std::function<void(const std::string& total, const std::string& free)>;

    using TaskOperations::TaskOperations;

    // One for each button. The operations must outlive them.
    NamedActions actions();

    // Reads both figures on the global queue and hands them over on the main queue.
    void readStorageFigures(StorageFigures show);
    // "0.00 bytes" if the partition does not answer. Any thread; read afresh at each call.
    std::string totalPrivateSpace() const;
    std::string freePrivateSpace() const;

    // Main thread; each shows its question and returns.
    void recreateApplicationFolders();
    void removeSafeguard();
    void removeSourcesList();
    void respring();
    void reboot();
    void backupSize();

    // Main thread. Reports the total size of the archives; one that is not accessible counts as
    // 0 bytes.
    void backupSizeCalculation(const std::vector<std::string>& paths, const std::string& name);

    // Main thread. The cancel button, index 0, does nothing in any alert.
    void alertViewClickedButtonAtIndex(const Alert& alert, int buttonIndex);

private:
    void createAllFolders();
    void chooseFolder();
    void createChosenFolder(int buttonIndex);
    void createFolders(const std::vector<std::string>& folders, const std::string& title,
                       const std::string& message);
    void emptyArchiveFolder();
    void deleteSourcesList();
    void startSizeCheck(int buttonIndex);
    void checkSize(const BackupItem& item);
    void measureTemporaryArchives(const BackupItem& item);
    static bool isDestructive(Tag tag);
    void ask(Tag tag, const std::string& title, const std::string& message,
             const std::vector<std::string>& buttons, const std::string& cancelButton = "Cancel");
    void showResult(const std::string& title, const std::string& message);
};

}  // namespace tarnwick
