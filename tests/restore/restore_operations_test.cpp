#include <gtest/gtest.h>

#include <algorithm>
#include <tuple>

#include "restore/RestoreOperations.h"
#include "support/Operations.h"

namespace tarnwick::testing {
namespace {

TEST(RestoreOperations, TheAllInOneRestoreTouchesOnlyWhatHasAnArchive) {
    Operations on;
    on.folder.put(library + "Notes.zip", "zip");
    on.restore.doTheRestoreAllInOne();
    EXPECT_EQ(on.diary.changes().size(), 5U);
    EXPECT_EQ(on.diary.changes().front(), "run: killall MobileNotes");
}

TEST(RestoreOperations, PhotosLookForTheFirstArchiveOnly) {
    Operations first;
    first.folder.put(library + "DCIM.zip", "zip");
    first.restore.restore(first.item("Photos"));
    EXPECT_EQ(first.diary.changes().size(), 9U);
    EXPECT_EQ(first.feedback.lastAlert.message, "Restoration done !");

    Operations second;
    second.folder.put(library + "PhotoData.zip", "zip");
    second.restore.restore(second.item("Photos"));
    EXPECT_EQ(second.diary.changes(), Entries{"run: killall MobileSlideShow"});
    EXPECT_EQ(second.feedback.lastAlert.kind, AlertKind::Problem);
}

TEST(RestoreOperations, SourcesThatCydiaDoesNotKnowGoIntoTheOwnList) {
    const std::tuple<const char*, const char*, const char*> rows[] = {
        {"a\nb\nc", "b", "a\nc"},
        {"a\r\nb\n", "y\n", "a\nb"},  // empty lines go if Cydia has one
        {"\xFF", "y", ""},            // what is no text has no lines
    };
    for (const auto& [saved, current, written] : rows) {
        Operations on;
        on.folder.put(savedList, saved);
        on.folder.put(savedCydia, "unused");
        on.folder.put(cache, current);
        on.folder.put(ownList, "old");
        on.restore.restoreSources();
        EXPECT_EQ(on.folder.content(ownList), written);
        EXPECT_EQ(on.diary.changes(),
                  (Entries{"remove: " + ownList, "create file: " + ownList, "write: " + ownList}));
    }
}

TEST(RestoreOperations, WhereAListIsMissingTheNextOneCountsAndThenNothing) {
    Operations on;
    on.folder.put(savedCydia, "a\nb");
    on.folder.put(cache, "b");
    on.folder.put(cydiaList, "stays");
    on.restore.restoreSources();
    EXPECT_EQ(on.folder.content(ownList), "a") << "of the saved list of Cydia's";
    EXPECT_EQ(on.folder.content(cydiaList), "stays");
    on.files.remove(cache);
    on.restore.restoreSources();
    EXPECT_EQ(on.folder.content(cydiaList), "a\nb") << "without a cache it replaces Cydia's";
    EXPECT_EQ(on.folder.content(ownList), "(none)");
    on.files.remove(savedCydia);
    on.restore.restoreSources();
    EXPECT_EQ(on.folder.content(cydiaList), "(none)") << "also by nothing";
    EXPECT_EQ(Entries(on.diary.entries.end() - 2, on.diary.entries.end()),
              (Entries{"hide", "alert: Cydia Sources Restoration: Restoration done ! [Close] #0"}));
}

TEST(RestoreOperations, NamesInTheConfirmationLoseEveryZip) {
    Operations on;
    for (const char* name : {"a.zip.zip", "x.zi.zipp", ".zip", "read me.txt"})
        on.folder.put(library + name, "");
    auto names = on.restore.safeguardContent().value();
    std::sort(names.begin(), names.end());
    EXPECT_EQ(names, (Entries{"", "a", "read me.txt", "x.zip"}));
}

TEST(RestoreOperations, AnswersOfUnknownAlertsAndButtonsDoNothing) {
    const std::pair<int, int> rows[] = {{0, 1}, {1, 0}, {1, 2}, {2, 0}, {3, 0}, {3, -1}, {4, 1}};
    for (const auto& [tag, index] : rows) {
        Operations on;
        on.restore.alertViewClickedButtonAtIndex({.tag = tag}, index);
        EXPECT_TRUE(on.diary.entries.empty()) << tag << ", " << index;
    }
}

TEST(RestoreOperations, AnAcceptedOfferIsDone) {
    for (const auto& [tag, line] :
         {std::pair(1, "run: /usr/bin/killall backboardd"), std::pair(2, "run: /sbin/reboot")}) {
        Operations on;
        on.restore.alertViewClickedButtonAtIndex({.tag = tag}, 1);
        EXPECT_EQ(on.diary.entries, Entries{line});
    }
}

}  // namespace
}  // namespace tarnwick::testing
