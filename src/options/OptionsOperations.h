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

// One of the four folders that can be made again, by its place in the choice.
struct RecreatableFolder {
    std::string buttonTitle;
    std::string path;
    std::string resultTitle;
    std::string resultMessage;
};

// In the order of the choice: the button of the first has index 1.
const std::vector<RecreatableFolder>& recreatableFolders();

// The tools of the Options screen. Each action asks in an alert; the answer does the work. Must
// outlive the tasks that it started.
class OptionsOperations {
public:
    // Tags of the alerts. An unscoped enumeration, as an alert carries its tag as a number.
    enum Tag : int {
        NoTag = 0,
        RecreateFoldersTag = 1,
        FolderChoiceTag = 2,
        RemoveSafeguardTag = 3,
        RespringTag = 4,
        RebootTag = 5,
        RemoveSourcesListTag = 6,
        SizeChoiceTag = 7
    };

    using StorageFigures = std::function<void(const std::string& total, const std::string& free)>;

    OptionsOperations(const ItemCatalogue& catalogue, CommandRunner& runner, FileManager& files,
                      Feedback& feedback, TaskQueues& queues);

    // Reads both figures on the global queue and hands them over on the main queue.
    void readStorageFigures(StorageFigures show);
    // "0.00 bytes" if the partition cannot be asked. Any thread; asked afresh at each call.
    std::string totalPrivateSpace() const;
    std::string freePrivateSpace() const;

    // Main thread; each shows its question and returns.
    void recreateApplicationFolders();
    void removeSafeguard();
    void removeSourcesList();
    void respring();
    void reboot();
    void backupSize();

    // Main thread. Tells the size of the archives together; one that cannot be looked at counts as
    // 0 bytes.
    void backupSizeCalculation(const std::vector<std::string>& paths, const std::string& name);

    // Main thread. The cancel button, index 0, does nothing in any alert.
    void alertViewClickedButtonAtIndex(const Alert& alert, int buttonIndex);

private:
    void createAllFolders(int buttonIndex);
    void chooseFolder(int buttonIndex);
    void createChosenFolder(int buttonIndex);
    void createFolders(const std::vector<std::string>& folders, const std::string& title,
                       const std::string& message);
    void emptyArchiveFolder(int buttonIndex);
    void deleteSourcesList(int buttonIndex);
    void restartHomeScreen(int buttonIndex);
    void restartDevice(int buttonIndex);
    void startSizeCheck(int buttonIndex);
    void checkSize(const BackupItem& item);
    void ask(const std::string& title, const std::string& message, const std::string& cancelButton,
             const std::vector<std::string>& buttons, Tag tag);
    void showResult(const std::string& title, const std::string& message);

    const ItemCatalogue& catalogue_;
    CommandRunner& runner_;
    FileManager& files_;
    Feedback& feedback_;
    TaskQueues& queues_;
};

}  // namespace tarnwick
