#include "options/OptionsOperations.h"

#include <array>
#include <utility>

#include "core/SafeguardPaths.h"
#include "options/SizeFormatters.h"

namespace tarnwick {

const std::vector<RecreatableFolder>& recreatableFolders() {
    // The last message differs from the others.
    static const std::vector<RecreatableFolder> folders = {
        {.buttonTitle = "Parent Folder: Tarnwick",
         .path = std::string(paths::safeguardRoot),
         .resultTitle = "Create Application Folder",
         .resultMessage = "Done !"},
        {.buttonTitle = "CydiaSources",
         .path = std::string(paths::sourcesFolder),
         .resultTitle = "Create Cydia Sources Folder",
         .resultMessage = "Done !"},
        {.buttonTitle = "CydiaPackages",
         .path = std::string(paths::packagesFolder),
         .resultTitle = "Create Cydia Packages Folder",
         .resultMessage = "Done !"},
        {.buttonTitle = "TarnwickLibrary",
         .path = std::string(paths::archiveFolder),
         .resultTitle = "Create Library Folder",
         .resultMessage = "Successful !"},
    };
    return folders;
}

NamedActions OptionsOperations::actions() {
    return {
        {"recreateApplicationFolders", [this] { recreateApplicationFolders(); }},
        {"removeSafeguard", [this] { removeSafeguard(); }},
        {"removeSourcesList", [this] { removeSourcesList(); }},
        {"respring", [this] { respring(); }},
        {"reboot", [this] { reboot(); }},
        {"backupSize", [this] { backupSize(); }},
    };
}

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
    ask(RecreateFoldersTag, "Create Application Folders",
        "Do you have removed application Folders ? Press All Folders to recreate them, Partially "
        "to choose which folder to recreate or Cancel to close this window",
        {"All Folders", "Partially"});
}

void OptionsOperations::chooseFolder() {
    std::vector<std::string> buttons;
    for (const RecreatableFolder& folder : recreatableFolders())
        buttons.push_back(folder.buttonTitle);
    ask(FolderChoiceTag, "Create Application Folders", "Select wich folder to recreate", buttons);
}

void OptionsOperations::removeSafeguard() {
    ask(RemoveSafeguardTag, "Remove Backup Folders",
        "Do you want to remove your Safeguard ? Do this only if you don't need to restore "
        "something and if you need some disk space !",
        {"Yes"});
}

void OptionsOperations::removeSourcesList() {
    ask(RemoveSourcesListTag, "Remove TWKSources",
        "Because Tarnwick now restore sources in a new list file, sources added by this way can't "
        "be deleted from Cydia. Do you want to delete them ? You can also go to "
        "/etc/apt/sources.list.d/ and edit TWKSources.list manually to only delete one source !",
        {"Delete it"});
}

void OptionsOperations::respring() {
    ask(RespringTag, "Respring", "Do you really want to Respring your device ?", {"Respring"});
}

void OptionsOperations::reboot() {
    ask(RebootTag, "Reboot", "Do you really want to Reboot your device ?", {"Reboot"});
}

void OptionsOperations::backupSize() {
    std::vector<std::string> buttons;
    for (const BackupItem& item : catalogue_)
        buttons.push_back(item.sizeButtonTitle);
    ask(SizeChoiceTag, "Backup Size",
        "Do you really want to check the size of the backup file(s) ?\n\n"
        "This will calculate the size of the backup you have done, but if you have never made one, "
        "this will perform a backup in order to check the size and delete it\n\n"
        "Select what you want to check below",
        buttons, "Nothing");
}

void OptionsOperations::alertViewClickedButtonAtIndex(const Alert& alert, int buttonIndex) {
    using Self = OptionsOperations;
    static constexpr std::array<AlertAction<Self>, 8> table = {{
        {RecreateFoldersTag, 1, [](Self& self, int) { self.createAllFolders(); }},
        {RecreateFoldersTag, 2, [](Self& self, int) { self.chooseFolder(); }},
        {FolderChoiceTag, anyOtherButton,
         [](Self& self, int index) { self.createChosenFolder(index); }},
        {RemoveSafeguardTag, 1, [](Self& self, int) { self.emptyArchiveFolder(); }},
        // Without a path, unlike the respring after a restore.
        {RespringTag, 1, [](Self& self, int) { self.runner_.run("killall backboardd"); }},
        {RebootTag, 1, [](Self& self, int) { self.runner_.run("/sbin/reboot"); }},
        {RemoveSourcesListTag, 1, [](Self& self, int) { self.deleteSourcesList(); }},
        {SizeChoiceTag, anyOtherButton, [](Self& self, int index) { self.startSizeCheck(index); }},
    }};
    performAlertAction<Self>(table, *this, alert, buttonIndex);
}

void OptionsOperations::createAllFolders() {
    createFolders({paths::safeguardFolders.begin(), paths::safeguardFolders.end()},
                  "Create Application Folders", "Done !");
}

void OptionsOperations::createChosenFolder(int buttonIndex) {
    if (const RecreatableFolder* folder = chosenFrom(recreatableFolders(), buttonIndex))
        createFolders({folder->path}, folder->resultTitle, folder->resultMessage);
}

void OptionsOperations::createFolders(const std::vector<std::string>& folders,
                                      const std::string& title, const std::string& message) {
    feedback_.showHud("Creating Application Folders...");
    for (const std::string& folder : folders)
        changes_.createDirectory(folder);
    feedback_.hideHud();
    showResult(title, message);
}

void OptionsOperations::emptyArchiveFolder() {
    feedback_.showHud("Removing Backup...");
    changes_.remove(paths::archiveFolder);
    changes_.createDirectory(paths::archiveFolder);
    feedback_.hideHud();
    showResult("Backup Suppression", "Done !");
}

void OptionsOperations::deleteSourcesList() {
    const bool isThere = files_.exists(paths::ownAptList);
    if (isThere)
        changes_.remove(paths::ownAptList);
    showResult("TWKSources Suppression", isThere ? "Done !" : "Nothing to remove");
}

void OptionsOperations::startSizeCheck(int buttonIndex) {
    if (const BackupItem* item = chosenFrom(catalogue_, buttonIndex))
        queues_.dispatchToGlobalQueue([this, item] { checkSize(*item); });
}

void OptionsOperations::checkSize(const BackupItem& item) {
    queues_.dispatchToMainQueue([this] { feedback_.showHud("Calculating Backup Size..."); });
    if (!files_.exists(item.firstArchivePath())) {
        measureTemporaryArchives(item);
        return;
    }
    queues_.dispatchToMainQueue([this, &item] {
        backupSizeCalculation(item.archivePaths(), item.sizeResultName);
        feedback_.hideHud();
    });
}

void OptionsOperations::measureTemporaryArchives(const BackupItem& item) {
    feedback_.working(item);
    runAll(item.sizeCommands);
    queues_.dispatchToMainQueue([this, &item] {
        backupSizeCalculation(item.sizeArchivePaths, item.sizeResultName);
        for (const std::string& copy : item.sizeCopyPaths)
            changes_.remove(copy);
        feedback_.hideHud();
    });
    // Right after the hand-over, whether or not the size has been read by then.
    for (const std::string& archive : item.sizeArchivePaths)
        changes_.remove(archive);
}

void OptionsOperations::backupSizeCalculation(const std::vector<std::string>& paths,
                                              const std::string& name) {
    double bytes = 0.0;
    for (const std::string& path : paths)
        bytes += static_cast<double>(files_.fileSize(path));
    showResult("Backup Size",
               "The \"" + name + "\" backup size is : " + memoryFormatterDouble(bytes));
}

// Only what removes something takes something away.
bool OptionsOperations::isDestructive(Tag tag) {
    return tag == RemoveSafeguardTag || tag == RemoveSourcesListTag;
}

void OptionsOperations::ask(Tag tag, const std::string& title, const std::string& message,
                            const std::vector<std::string>& buttons,
                            const std::string& cancelButton) {
    feedback_.show({.title = title,
                    .message = message,
                    .cancelButtonTitle = cancelButton,
                    .otherButtonTitles = buttons,
                    .tag = tag,
                    .kind = AlertKind::Question,
                    .destructiveButton = isDestructive(tag) ? 1 : 0});
}

void OptionsOperations::showResult(const std::string& title, const std::string& message) {
    feedback_.show({.title = title, .message = message});
}

}  // namespace tarnwick
