#include <gtest/gtest.h>

#include <tuple>

#include "backup/BackupOperations.h"
#include "support/Operations.h"

namespace tarnwick::testing {
namespace {

TEST(BackupOperations, AnOlderArchiveCountsWhateverTheCommandsSay) {
    Operations on;
    on.runner.status = 1;
    on.folder.put(library + "SMS.zip", "old");
    on.backup.save(on.item("Messages"));
    EXPECT_EQ(on.feedback.lastAlert.title, "Messages/iMessages Backup");
    on.backup.save(on.item("Calendar"));
    EXPECT_EQ(on.feedback.lastAlert.title, "Calendar Backup Error");
    EXPECT_EQ(on.feedback.lastAlert.kind, AlertKind::Problem);
}

TEST(BackupOperations, PhotosTellOneAlertByTheFirstMissingArchive) {
    const auto titleWith = [](const std::string& archive) {
        Operations on;
        on.folder.put(library + archive, "zip");
        on.backup.save(on.item("Photos"));
        EXPECT_EQ(on.diary.alerts().size(), 1U);
        return on.feedback.lastAlert.title;
    };
    EXPECT_EQ(titleWith("PhotoData.zip"), "Photos and Videos Backup Error");
    EXPECT_EQ(titleWith("DCIM.zip"), "PhotoData Backup Error");
}

TEST(BackupOperations, SourcesAreCopiedMergedOrTakenFromCydiasList) {
    Operations copied;
    copied.folder.put(cache, "deb a\n");
    copied.folder.put(savedList, "old");
    copied.backup.saveSources();
    EXPECT_EQ(copied.diary.changes(),
              (Entries{"remove: " + savedList, "copy: " + cache + " to " + savedList}));

    Operations cydias;
    cydias.folder.put(cydiaList, "deb c");
    cydias.folder.put(savedCydia, "old");
    cydias.backup.saveSources();
    EXPECT_EQ(cydias.diary.changes(),
              (Entries{"remove: " + savedCydia, "copy: " + cydiaList + " to " + savedCydia}));
    EXPECT_EQ(cydias.folder.content(savedCydia), "deb c");
    EXPECT_EQ(Entries(cydias.diary.entries.end() - 2, cydias.diary.entries.end()),
              (Entries{"hide", "alert: Cydia Sources Backup: Backup done ! [Close] #0"}));
}

TEST(BackupOperations, TheMergeKeepsEveryLineOfReadableLists) {
    const std::tuple<const char*, const char*, const char*> rows[] = {
        {"deb a\r\n\n", "deb own\ndeb a", "deb a\n\n\n\ndeb own\ndeb a"},
        {"deb a", "\xFF", "deb a"},
        {"", "deb own", "\ndeb own"},
    };
    for (const auto& [cached, own, merged] : rows) {
        Operations on;
        on.folder.put(cache, cached);
        on.folder.put(ownList, own);
        on.folder.put(savedList, "old");
        on.backup.saveSources();
        EXPECT_EQ(on.folder.content(savedList), merged);
        EXPECT_EQ(on.diary.changes(), (Entries{"remove: " + savedList, "create file: " + savedList,
                                               "write: " + savedList}));
    }
}

TEST(BackupOperations, MissingFoldersAreAllLookedForBeforeAnyIsMade) {
    const std::string root = "/var/mobile/Library/Preferences/Tarnwick";
    Operations on;
    on.folder.put(root + "/CydiaSources", "a file counts as well");
    on.backup.ensureSafeguardFolders();
    EXPECT_EQ(on.diary.entries,
              (Entries{"exists: " + root, "exists: " + root + "/CydiaSources",
                       "exists: " + root + "/CydiaPackages", "exists: " + root + "/TarnwickLibrary",
                       "create folder: " + root + "/CydiaPackages",
                       "create folder: " + root + "/TarnwickLibrary"}));
}

}  // namespace
}  // namespace tarnwick::testing
