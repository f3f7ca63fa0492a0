#include <gtest/gtest.h>

#include "backup/BackupOperations.h"
#include "support/Operations.h"

namespace tarnwick {
namespace {

using testing::Entries;
using testing::Operations;

const std::string library = "/var/mobile/Library/Preferences/Tarnwick/TarnwickLibrary/";
const std::string savedList = "/var/mobile/Library/Preferences/Tarnwick/CydiaSources/sources.list";
const std::string savedCydia = "/var/mobile/Library/Preferences/Tarnwick/CydiaSources/cydia.list";
const std::string cache = "/var/mobile/Library/Caches/com.saurik.Cydia/sources.list";
const std::string ownList = "/etc/apt/sources.list.d/TWKSources.list";
const std::string cydiaList = "/etc/apt/sources.list.d/cydia.list";

TEST(BackupOperations, AnOlderArchiveCountsAndAMissingOneIsTold) {
    Operations on;
    on.runner.status = 1;
    on.putArchive("SMS.zip");
    on.backup.save(on.item("Messages"));
    on.backup.save(on.item("Calendar"));
    EXPECT_EQ(
        on.diary.alerts(),
        (Entries{"alert: Messages/iMessages Backup: Backup done ! [Close] #0",
                 "alert: Calendar Backup Error: There was an error during the Calendar backup. "
                 "Nothing has been done. Please try again ! [Close] #0"}));
    EXPECT_EQ(on.feedback.lastAlert.kind, AlertKind::Problem);
}

TEST(BackupOperations, PhotosTellOneAlertByTheFirstMissingArchive) {
    const auto alertTitleWith = [](const std::vector<std::string>& archives) {
        Operations on;
        for (const std::string& archive : archives)
            on.putArchive(archive);
        on.backup.save(on.item("Photos"));
        EXPECT_EQ(on.diary.alerts().size(), 1U);
        return on.feedback.lastAlert.title;
    };
    EXPECT_EQ(alertTitleWith({}), "Photos and Videos Backup Error");
    EXPECT_EQ(alertTitleWith({"PhotoData.zip"}), "Photos and Videos Backup Error");
    EXPECT_EQ(alertTitleWith({"DCIM.zip"}), "PhotoData Backup Error");
    EXPECT_EQ(alertTitleWith({"DCIM.zip", "PhotoData.zip"}), "Photos and Videos Backup");
}

TEST(BackupOperations, SourcesAreCopiedMergedOrTakenFromCydiasList) {
    Operations copied;
    copied.files.texts = {{cache, "deb a\n"}, {savedList, "old"}, {savedCydia, "stays"}};
    copied.backup.saveSources();
    EXPECT_EQ(copied.diary.changes(),
              (Entries{"remove: " + savedList, "copy: " + cache + " to " + savedList}));
    EXPECT_EQ(copied.files.texts[savedList], "deb a\n");
    EXPECT_EQ(copied.files.texts[savedCydia], "stays");

    Operations merged;
    merged.files.texts = {{cache, "deb a\r\n\n"}, {ownList, "deb own\ndeb a"}};
    merged.backup.saveSources();
    EXPECT_EQ(merged.diary.changes(),
              (Entries{"create file: " + savedList, "write: " + savedList}));
    EXPECT_EQ(merged.files.texts[savedList], "deb a\n\n\n\ndeb own\ndeb a");

    Operations cydias;
    cydias.files.texts = {{cydiaList, "deb c"}, {savedCydia, "old"}, {savedList, "stays"}};
    cydias.backup.saveSources();
    EXPECT_EQ(cydias.diary.changes(),
              (Entries{"remove: " + savedCydia, "copy: " + cydiaList + " to " + savedCydia}));
    EXPECT_EQ(cydias.files.texts[savedCydia], "deb c");
    EXPECT_EQ(cydias.files.texts[savedList], "stays");
    EXPECT_EQ(cydias.diary.entries.back(), "alert: Cydia Sources Backup: Backup done ! [Close] #0");
}

TEST(BackupOperations, AnUnreadableListGivesNoLinesToTheMerge) {
    Operations on;
    on.files.texts = {{cache, "deb a"}};
    on.files.unreadable = {ownList};
    on.backup.saveSources();
    EXPECT_EQ(on.files.texts[savedList], "deb a");

    Operations neither;
    neither.files.unreadable = {cache, ownList};
    neither.backup.saveSources();
    EXPECT_EQ(neither.files.texts[savedList], "");

    Operations emptyOne;
    emptyOne.files.texts = {{cache, ""}, {ownList, "deb own"}};
    emptyOne.backup.saveSources();
    EXPECT_EQ(emptyOne.files.texts[savedList], "\ndeb own");
}

TEST(BackupOperations, MissingFoldersAreAllLookedForBeforeAnyIsMade) {
    const std::string root = "/var/mobile/Library/Preferences/Tarnwick";
    Operations on;
    on.files.texts = {{root + "/CydiaSources", "a file counts as well"}};
    on.backup.ensureSafeguardFolders();
    EXPECT_EQ(on.diary.entries,
              (Entries{"exists: " + root, "exists: " + root + "/CydiaSources",
                       "exists: " + root + "/CydiaPackages", "exists: " + root + "/TarnwickLibrary",
                       "create folder: " + root, "create folder: " + root + "/CydiaPackages",
                       "create folder: " + root + "/TarnwickLibrary"}));
}

}  // namespace
}  // namespace tarnwick
