#include "core/ItemCatalogue.h"

#include <algorithm>

#include "core/SafeguardPaths.h"

namespace tarnwick {

namespace {

// A folder of a data set. What is not set follows the rule.
struct Folder {
    std::string source;
    std::string errorNoun;
    // Where `cp -R` puts the staging copy; ends with a slash.
    std::string stagingParent = std::string(paths::archiveFolder) + "/";
    // Removed from every copy before it is zipped.
    std::string excluded = {};
    // Where a restore copies the folder back from.
    std::string unpackedSource = {};
    // The staging parent as the single save spells it.
    std::string singleSaveParent = {};
};

struct Description {
    std::string key;
    std::vector<Folder> folders;
    std::string noun;  // for all texts that have no noun of their own
    std::string restoreNoun = noun;
    std::string sizeButtonTitle = noun;
    std::string sizeResultName = sizeButtonTitle;
    std::string application = {};
    std::string owner = "mobile:mobile";
    Offer offer = Offer::None;
};

Folder libraryFolder(const std::string& name, const std::string& errorNoun) {
    return {.source = "/var/mobile/Library/" + name, .errorNoun = errorNoun};
}

// Staged outside the safeguard folder, which lies inside the folder to save.
Folder preferencesFolder() {
    Folder folder = libraryFolder("Preferences", "Preferences");
    folder.stagingParent = paths::scratchFolder;
    folder.excluded = "/Tarnwick";
    folder.unpackedSource = "/var/tmp/var/tmp/Preferences/";
    return folder;
}

// The restore looks for the live folder's path, which no archive of ours contains.
Folder callHistoryFolder() {
    return {.source = "/var/wireless/Library/CallHistory",
            .errorNoun = "Call History",
            .unpackedSource = "/var/tmp/var/wireless/Library/CallHistory"};
}

// The single save relies on "/" being the working directory.
Folder springBoardFolder() {
    Folder folder = libraryFolder("SpringBoard", "SpringBoard");
    folder.singleSaveParent = folder.stagingParent.substr(1);
    return folder;
}

std::vector<Description> descriptions() {
    return {
        {.key = "TweaksPrefs",
         .folders = {preferencesFolder()},
         .noun = "Tweaks' Preferences",
         .sizeResultName = "Preferences",
         .owner = ""},
        {.key = "Accounts",
         .folders = {libraryFolder("Accounts", "Accounts")},
         .noun = "Accounts",
         .offer = Offer::Reboot},
        {.key = "Calendar",
         .folders = {libraryFolder("Calendar", "Calendar")},
         .noun = "Calendar",
         .sizeButtonTitle = "Calendar Events",
         .application = "MobileCal"},
        {.key = "CallHistory",
         .folders = {callHistoryFolder()},
         .noun = "Call History",
         .application = "MobilePhone",
         .owner = "_wireless:_wireless",
         .offer = Offer::Reboot},
        {.key = "Contacts",
         .folders = {libraryFolder("AddressBook", "Contacts")},
         .noun = "Contacts",
         .application = "Contacts"},
        {.key = "Messages",
         .folders = {libraryFolder("SMS", "Messages/iMessages")},
         .noun = "Messages/iMessages",
         .sizeButtonTitle = "Messages / iMessages",
         .application = "MobileSMS",
         .offer = Offer::Reboot},
        {.key = "Notes",
         .folders = {libraryFolder("Notes", "Notes")},
         .noun = "Notes",
         .application = "MobileNotes"},
        {.key = "Photos",
         .folders = {{.source = "/var/mobile/Media/DCIM", .errorNoun = "Photos and Videos"},
                     {.source = "/var/mobile/Media/PhotoData", .errorNoun = "PhotoData"}},
         .noun = "Photos and Videos",
         .restoreNoun = "Photos",
         .sizeButtonTitle = "Photos / Videos",
         .application = "MobileSlideShow"},
        {.key = "Safari",
         .folders = {libraryFolder("Safari", "Safari Bookmarks")},
         .noun = "Safari Bookmarks",
         .application = "MobileSafari"},
        {.key = "Springboard",
         .folders = {springBoardFolder()},
         .noun = "SpringBoard",
         .offer = Offer::Respring},
        {.key = "Voicemails",
         .folders = {libraryFolder("Voicemail", "Voicemails")},
         .noun = "Voicemails",
         .application = "MobilePhone",
         .offer = Offer::Reboot},
    };
}

std::string nameOf(const Folder& folder) {
    return folder.source.substr(folder.source.rfind('/') + 1);
}

std::string liveParentOf(const Folder& folder) {
    return folder.source.substr(0, folder.source.rfind('/') + 1);
}

std::string stagingOf(const Folder& folder) {
    return folder.stagingParent + nameOf(folder);
}

std::string archiveOf(const Folder& folder) {
    return std::string(paths::archiveFolder) + "/" + nameOf(folder) + ".zip";
}

// The lines that copy the folder into the parent and zip the copy.
std::vector<std::string> archiving(const Folder& folder, const std::string& copyTarget,
                                   const std::string& stagingParent, const std::string& archive) {
    const std::string staging = stagingParent + nameOf(folder);
    std::vector<std::string> lines = {"cp -R " + folder.source + " " + copyTarget};
    if (!folder.excluded.empty())
        lines.push_back("rm -rf " + staging + folder.excluded);
    lines.push_back("zip -r " + archive + " " + staging + "/");
    return lines;
}

std::vector<std::string> restoring(const Folder& folder, const std::string& owner) {
    const std::string unpacked =
        folder.unpackedSource.empty() ? "/var/tmp" + stagingOf(folder) : folder.unpackedSource;
    std::vector<std::string> lines = {
        "/usr/bin/unzip " + archiveOf(folder) + " -d " + std::string(paths::scratchFolder),
        "/bin/cp -R " + unpacked + " " + liveParentOf(folder),
        "/bin/rm -rf " + std::string(paths::unpackedTree),
    };
    if (!owner.empty())
        lines.push_back("chown -R " + owner + " " + folder.source);
    return lines;
}

void append(std::vector<std::string>& lines, const std::vector<std::string>& more) {
    lines.insert(lines.end(), more.begin(), more.end());
}

void addSaving(BackupItem& item, const Folder& folder) {
    const std::string& parent = folder.stagingParent;
    const std::string& single = folder.singleSaveParent.empty() ? parent : folder.singleSaveParent;
    item.sourcePaths.push_back(folder.source);
    item.stagingPaths.push_back(stagingOf(folder));
    item.archives.push_back({.path = archiveOf(folder),
                             .errorTitle = folder.errorNoun + " Backup Error",
                             .errorMessage = "There was an error during the " + folder.errorNoun +
                                             " backup. Nothing has been done. Please try again !"});
    append(item.saveCommands, archiving(folder, single, parent, archiveOf(folder)));
    append(item.allInOneSaveCommands, archiving(folder, parent, parent, archiveOf(folder)));
}

void addSizing(BackupItem& item, const Folder& folder) {
    const std::string scratch(paths::scratchFolder);
    const std::string archive = scratch + nameOf(folder) + ".zip";
    item.sizeArchivePaths.push_back(archive);
    item.sizeCopyPaths.push_back(scratch + nameOf(folder));
    append(item.sizeCommands, archiving(folder, scratch, scratch, archive));
}

BackupItem itemFrom(const Description& description) {
    BackupItem item;
    item.key = description.key;
    item.successTitle = description.noun + " Backup";
    item.restoreTitle = description.restoreNoun + " Restoration";
    item.missingBackupMessage =
        "You have no " + description.restoreNoun + " backup, there is nothing to do !";
    if (!description.application.empty())
        item.stopCommand = "killall " + description.application;
    item.offer = description.offer;
    item.sizeButtonTitle = description.sizeButtonTitle;
    item.sizeResultName = description.sizeResultName;
    for (const Folder& folder : description.folders) {
        addSaving(item, folder);
        append(item.restoreCommands, restoring(folder, description.owner));
        addSizing(item, folder);
    }
    return item;
}

}  // namespace

std::vector<std::string> BackupItem::archivePaths() const {
    std::vector<std::string> paths;
    for (const BackupArchive& archive : archives)
        paths.push_back(archive.path);
    return paths;
}

ItemCatalogue::ItemCatalogue() {
    for (const Description& description : descriptions())
        items_.push_back(itemFrom(description));
}

const BackupItem* ItemCatalogue::find(std::string_view key) const {
    const auto found = std::find_if(items_.begin(), items_.end(),
                                    [key](const BackupItem& item) { return item.key == key; });
    return found == items_.end() ? nullptr : &*found;
}

}  // namespace tarnwick
