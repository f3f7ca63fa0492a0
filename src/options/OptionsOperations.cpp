#include "options/OptionsOperations.h"

#include <array>
#include <utility>

#include "core/SafeguardPaths.h"
#include "options/SizeFormatters.h"

namespace tarnwick {

const std::vector<RecreatableFolder>& recreatableFolders() {
    // The last one's words differ from the others'.
    static const std::vector<RecreatableFolder> folders = {
        {"Parent Folder: Tarnwick", std::string(paths::safeguardRoot), "Create Application Folder",
         "Done !"},
        {"CydiaSources", std::string(paths::sourcesFolder), "Create Cydia Sources Folder",
         "Done !"},
        {"CydiaPackages", std::string(paths::packagesFolder), "Create Cydia Packages Folder",
         "Done !"},
        {"TarnwickLibrary", std::string(paths::archiveFolder), "Create Library Folder",
         "Successful !"},
    };
    return folders;
}

OptionsOperations::OptionsOperations(const ItemCatalogue& catalogue, CommandRunner& runner,
                                     FileManager& files, Feedback& feedback, TaskQueues& queues)
    : catalogue_(catalogue), runner_(runner), files_(files), feedback_(feedback), queues_(queues) {}

void OptionsOperations::readStorageFigures(StorageFigures show) {
    queues_.dispatchToGlobalQueue([this, show = std::move(show)] {
        const std::string total = totalPrivateSpace();
        const std::string free = freePrivateSpace();
        queues_.dispatchToMainQueue([show, total, free] { show(total, free); });
    });
}

std::string OptionsOperations::totalPrivateSpace() const {
    return memoryFormatter(files_.fileSystemSize(paths::userPartition));
}

std::string OptionsOperations::freePrivateSpace() const {
    return memoryFormatter(files_.fileSystemFreeSize(paths::userPartition));
}

void OptionsOperations::recreateApplicationFolders() {
    ask("Create Application Folders",
        "Do you have removed application Folders ? Press All Folders to recreate them, Partially "
        "to choose which folder to recreate or Cancel to close this window",
        "Cancel", {"All Folders", "Partially"}, RecreateFoldersTag);
}

void OptionsOperations::chooseFolder(int) {
    std::vector<std::string> buttons;
    for (const RecreatableFolder& folder : recreatableFolders())
        buttons.push_back(folder.buttonTitle);
    ask("Create Application Folders", "Select wich folder to recreate", "Cancel", buttons,
        FolderChoiceTag);
}

void OptionsOperations::removeSafeguard() {
    ask("Remove Backup Folders",
        "Do you want to remove your Safeguard ? Do this only if you don't need to restore "
        "something and if you need some disk space !",
        "Cancel", {"Yes"}, RemoveSafeguardTag);
}

void OptionsOperations::removeSourcesList() {
    ask("Remove TWKSources",
        "Because Tarnwick now restore sources in a new list file, sources added by this way can't "
        "be deleted from Cydia. Do you want to delete them ? You can also go to "
        "/etc/apt/sources.list.d/ and edit TWKSources.list manually to only delete one source !",
        "Cancel", {"Delete it"}, RemoveSourcesListTag);
}

void OptionsOperations::respring() {
    ask("Respring", "Do you really want to Respring your device ?", "Cancel", {"Respring"},
        RespringTag);
}

void OptionsOperations::reboot() {
    ask("Reboot", "Do you really want to Reboot your device ?", "Cancel", {"Reboot"}, RebootTag);
}

void OptionsOperations::backupSize() {
    std::vector<std::string> buttons;
    for (const BackupItem& item : catalogue_)
        buttons.push_back(item.sizeButtonTitle);
    ask("Backup Size",
        "Do you really want to check the size of the backup file(s) ?\n\n"
        "This will calculate the size of the backup you have done, but if you have never made one, "
        "this will perform a backup in order to check the size and delete it\n\n"
        "Select what you want to check below",
        "Nothing", buttons, SizeChoiceTag);
}

void OptionsOperations::alertViewClickedButtonAtIndex(const Alert& alert, int buttonIndex) {
    using Action = AlertAction<OptionsOperations>;
    using Self = OptionsOperations;
    static constexpr std::array<Action, 8> table = {
        Action{RecreateFoldersTag, 1, 1, &Self::createAllFolders},
        Action{RecreateFoldersTag, 2, 2, &Self::chooseFolder},
        Action{FolderChoiceTag, 1, 4, &Self::createChosenFolder},
        Action{RemoveSafeguardTag, 1, 1, &Self::emptyArchiveFolder},
        Action{RespringTag, 1, 1, &Self::restartHomeScreen},
        Action{RebootTag, 1, 1, &Self::restartDevice},
        Action{RemoveSourcesListTag, 1, 1, &Self::deleteSourcesList},
        Action{SizeChoiceTag, 1, 11, &Self::startSizeCheck},
    };
    performAlertAction<OptionsOperations>(table, *this, alert, buttonIndex);
}

void OptionsOperations::createAllFolders(int) {
    createFolders({paths::safeguardFolders.begin(), paths::safeguardFolders.end()},
                  "Create Application Folders", "Done !");
}

void OptionsOperations::createChosenFolder(int buttonIndex) {
    const auto& folder = recreatableFolders()[static_cast<std::size_t>(buttonIndex - 1)];
    createFolders({folder.path}, folder.resultTitle, folder.resultMessage);
}

void OptionsOperations::createFolders(const std::vector<std::string>& folders,
                                      const std::string& title, const std::string& message) {
    feedback_.showHud("Creating Application Folders...");
    for (const std::string& folder : folders)
        files_.createDirectory(folder);
    feedback_.hideHud();
    showResult(title, message);
}

void OptionsOperations::emptyArchiveFolder(int) {
    feedback_.showHud("Removing Backup...");
    files_.remove(paths::archiveFolder);
    files_.createDirectory(paths::archiveFolder);
    feedback_.hideHud();
    showResult("Backup Suppression", "Done !");
}

void OptionsOperations::deleteSourcesList(int) {
    const bool there = files_.exists(paths::ownAptList);
    if (there)
        files_.remove(paths::ownAptList);
    showResult("TWKSources Suppression", there ? "Done !" : "Nothing to remove");
}

void OptionsOperations::restartHomeScreen(int) {
    // Without a path, unlike the respring after a restore.
    runner_.run("killall backboardd");
}

void OptionsOperations::restartDevice(int) {
    runner_.run("/sbin/reboot");
}

void OptionsOperations::startSizeCheck(int buttonIndex) {
    const BackupItem& item = catalogue_[static_cast<std::size_t>(buttonIndex - 1)];
    queues_.dispatchToGlobalQueue([this, &item] { checkSize(item); });
}

void OptionsOperations::checkSize(const BackupItem& item) {
    queues_.dispatchToMainQueue([this] { feedback_.showHud("Calculating Backup Size..."); });
    if (files_.exists(item.archivePaths.front())) {
        queues_.dispatchToMainQueue([this, &item] {
            backupSizeCalculation(item.archivePaths, item.sizeResultName);
            feedback_.hideHud();
        });
        return;
    }
    feedback_.working(item);
    for (const std::string& line : item.sizeCommands)
        runner_.run(line);
    queues_.dispatchToMainQueue([this, &item] {
        backupSizeCalculation(item.sizeArchivePaths, item.sizeResultName);
        for (const std::string& copy : item.sizeCopyPaths)
            files_.remove(copy);
        feedback_.hideHud();
    });
    // Right after the hand-over, whether or not the size has been read by then.
    for (const std::string& archive : item.sizeArchivePaths)
        files_.remove(archive);
}

void OptionsOperations::backupSizeCalculation(const std::vector<std::string>& paths,
                                              const std::string& name) {
    double bytes = 0.0;
    for (const std::string& path : paths)
        bytes += static_cast<double>(files_.fileSize(path));
    showResult("Backup Size",
               "The \"" + name + "\" backup size is : " + memoryFormatterDouble(bytes));
}

void OptionsOperations::ask(const std::string& title, const std::string& message,
                            const std::string& cancelButton,
                            const std::vector<std::string>& buttons, Tag tag) {
    feedback_.show({.title = title,
                    .message = message,
                    .cancelButtonTitle = cancelButton,
                    .otherButtonTitles = buttons,
                    .tag = tag,
                    .kind = AlertKind::Question});
}

void OptionsOperations::showResult(const std::string& title, const std::string& message) {
    feedback_.show({.title = title, .message = message});
}

}  // namespace tarnwick
