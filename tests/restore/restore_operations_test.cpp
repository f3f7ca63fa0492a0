#include <gtest/gtest.h>

#include "restore/RestoreOperations.h"
#include "support/Operations.h"

namespace tarnwick {
namespace {

using testing::Entries;
using testing::Operations;

const std::string library = "/var/mobile/Library/Preferences/Tarnwick/TarnwickLibrary/";
const std::string savedList = "/var/mobile/Library/Preferences/Tarnwick/CydiaSources/sources.list";
const std::string savedCydia = "/var/mobile/Library/Preferences/Tarnwick/CydiaSources/cydia.list";
const std::string savedPackages =
    "/var/mobile/Library/Preferences/Tarnwick/CydiaPackages/installed-packages.txt";
const std::string cache = "/var/mobile/Library/Caches/com.saurik.Cydia/sources.list";
const std::string ownList = "/etc/apt/sources.list.d/TWKSources.list";
const std::string cydiaList = "/etc/apt/sources.list.d/cydia.list";

TEST(RestoreOperations, TheAllInOneRestoreStopsAnApplicationOnlyIfItsArchiveIsThere) {
    Operations on;
    on.putArchive("Notes.zip");
    on.restore.doTheRestoreAllInOne();
    Entries started;
    for (const std::string& entry : on.diary.changes())
        if (entry.starts_with("run: killall"))
            started.push_back(entry);
    EXPECT_EQ(started, Entries{"run: killall MobileNotes"});
}

TEST(RestoreOperations, PhotosLookForTheFirstArchiveOnly) {
    Operations one;
    one.putArchive("DCIM.zip");
    one.restore.restore(one.item("Photos"));
    EXPECT_EQ(one.diary.changes().size(), 9U);
    EXPECT_EQ(one.feedback.lastAlert.message, "Restoration done !");

    Operations other;
    other.putArchive("PhotoData.zip");
    other.restore.restore(other.item("Photos"));
    EXPECT_EQ(other.diary.changes(), Entries{"run: killall MobileSlideShow"});
    EXPECT_EQ(other.feedback.lastAlert.message,
              "You have no Photos backup, there is nothing to do !");
}

TEST(RestoreOperations, SourcesThatCydiaDoesNotKnowGoIntoTheOwnList) {
    struct Row {
        const char* name;
        std::string saved;
        std::string current;
        std::string written;
    };
    const Row rows[] = {
        {"the known line is dropped", "a\nb\nc", "b", "a\nc"},
        {"no newline at the end", "a\nb\n", "b\n", "a"},
        {"unknown lines stay twice", "x\nx", "y", "x\nx"},
        {"pairs of newline characters", "a\r\nb", "y", "a\n\nb"},
        {"empty lines go if Cydia has one", "a\r\nb", "y\n", "a\nb"},
        {"blanks and case count", "deb a \nDEB a", "deb a", "deb a \nDEB a"},
    };
    for (const Row& row : rows) {
        Operations on;
        on.files.texts = {{savedList, row.saved}, {cache, row.current}, {ownList, "old"}};
        on.restore.restoreSources();
        EXPECT_EQ(on.files.texts[ownList], row.written) << row.name;
        EXPECT_EQ(on.diary.changes(),
                  (Entries{"remove: " + ownList, "create file: " + ownList, "write: " + ownList}))
            << row.name;
    }
}

TEST(RestoreOperations, SourcesFallBackToTheSavedCydiaList) {
    Operations on;
    on.files.texts = {{savedCydia, "a\nb"}, {cache, "b"}, {cydiaList, "stays"}};
    on.restore.restoreSources();
    EXPECT_EQ(on.files.texts[ownList], "a");
    EXPECT_EQ(on.files.texts[cydiaList], "stays");

    Operations nothingSaved;
    nothingSaved.files.texts = {{cache, "b"}};
    nothingSaved.restore.restoreSources();
    EXPECT_EQ(nothingSaved.files.texts[ownList], "");
    EXPECT_EQ(nothingSaved.diary.entries.back(),
              "alert: Cydia Sources Restoration: Restoration done ! [Close] #0");
}

TEST(RestoreOperations, WithoutCydiasCacheItsListIsReplacedEvenByNothing) {
    Operations on;
    on.files.texts = {
        {savedCydia, "saved"}, {savedList, "unused"}, {cydiaList, "old"}, {ownList, "own"}};
    on.restore.restoreSources();
    EXPECT_EQ(on.files.texts[cydiaList], "saved");
    EXPECT_FALSE(on.files.texts.contains(ownList));

    Operations nothingSaved;
    nothingSaved.files.texts = {{cydiaList, "old"}};
    nothingSaved.restore.restoreSources();
    EXPECT_TRUE(nothingSaved.files.texts.empty());
}

TEST(RestoreOperations, TheConfirmationIsAskedEvenIfNothingCanBeListed) {
    Operations on;
    on.restore.restoreAllInOne();
    EXPECT_EQ(on.feedback.lastAlert.message,
              "You have all of these backup on your device : \n\n\n\n Do you want to restore all "
              "of them ?");
}

TEST(RestoreOperations, ButtonsDoWhatTheTableSaysAndNoMore) {
    struct Row {
        int tag;
        int index;
        Entries firstEntries;
    };
    const Row rows[] = {
        {1, 1, {"run: /usr/bin/killall backboardd"}},
        {2, 1, {"run: /sbin/reboot"}},
        {3, 1, {"hud: Restoration in progress...", "background thread"}},
        {0, 0, {}},
        {0, 1, {}},
        {1, 0, {}},
        {2, 0, {}},
        {3, 0, {}},
        {1, 2, {}},
        {4, 1, {}},
        {3, -1, {}},
    };
    for (const Row& row : rows) {
        Operations on;
        Alert alert;
        alert.tag = row.tag;
        on.restore.alertViewClickedButtonAtIndex(alert, row.index);
        on.diary.entries.resize(std::min(on.diary.entries.size(), std::size_t{2}));
        EXPECT_EQ(on.diary.entries, row.firstEntries) << row.tag << ", " << row.index;
    }
}

}  // namespace
}  // namespace tarnwick
