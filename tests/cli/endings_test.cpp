#include <gtest/gtest.h>

#include <cstdlib>
#include <map>

#include "support/CommandLineRun.h"
#include "support/Operations.h"
#include "support/Terminal.h"

namespace tarnwick::testing {
namespace {

// Each step makes what it should, but for what the test breaks.
void saveWell(const CommandLineRun& tarnwick, const std::string& line) {
    if (line.starts_with("dpkg"))
        tarnwick.folder.put(savedPackages, "12345");
    if (line.starts_with("zip -r "))
        tarnwick.folder.put(line.substr(7, line.find(' ', 7) - 7), "12345");
}

TEST(Endings, ARunOverAllEndsWithALineForEachItem) {
    CommandLineRun tarnwick;
    for (const BackupItem& item : ItemCatalogue())
        if (item.key != "Voicemails")
            tarnwick.folder.put(item.sourcePaths.front() + "/data", "");
    tarnwick.folder.put(library + "Safari.zip", "of yesterday");
    tarnwick.runner.act = [&](const std::string& line) {
        const bool fails = line.find("AddressBook") != std::string::npos ||
                           line.starts_with("cp -R /var/mobile/Library/Safari");
        tarnwick.runner.status = fails ? 1 << 8 : 0;
        if (!fails && line.find("Notes.zip") == std::string::npos)
            saveWell(tarnwick, line);
    };
    EXPECT_EQ(tarnwick("save packages all"), NotAllDone);
    EXPECT_EQ(tarnwick.results(),
              "Cydia Packages Backup: Backup done !\nAll in One Backup: Backup done !\n"
              "packages: saved (5.00 B)\ntweaks-prefs: saved (5.00 B)\naccounts: saved (5.00 B)\n"
              "calendar: saved (5.00 B)\ncall-history: saved (5.00 B)\nmessages: saved (5.00 B)\n"
              "photos: saved (10.00 B)\nspringboard: saved (5.00 B)\n"
              "voicemails: nothing to save\n");
    EXPECT_TRUE(tarnwick.problems().ends_with(
        "contacts: failed (cp -R /var/mobile/Library/AddressBook " + library +
        ": ended with status 1)\nnotes: failed (there is no Notes.zip)\n"
        "safari: failed (cp -R /var/mobile/Library/Safari " +
        library + ": ended with status 1)\n"))
        << tarnwick.problems();
}

TEST(Endings, ARestoreOfAllEndsWithALineForEachItem) {
    CommandLineRun tarnwick;
    for (const char* archive : {"Notes.zip", "SMS.zip", "CallHistory.zip"})
        tarnwick.folder.put(library + archive, TemporaryFolder::emptyArchive());
    tarnwick.runner.act = [&](const std::string& line) {
        tarnwick.runner.status = line.find("SMS.zip") != std::string::npos ? 9 << 8 : 0;
        if (line.find("Notes.zip") != std::string::npos)
            tarnwick.folder.put("/var/tmp" + library + "Notes/data", "");
    };
    EXPECT_EQ(tarnwick("restore all --yes"), NotAllDone);
    EXPECT_TRUE(tarnwick.results().ends_with(
        "now ?\ntweaks-prefs: no backup\naccounts: no backup\ncalendar: no backup\n"
        "call-history: not restored (its archive does not have var/wireless/Library/CallHistory)\n"
        "contacts: no backup\nnotes: restored\nphotos: no backup\nsafari: no backup\n"
        "springboard: no backup\nvoicemails: no backup\n"))
        << tarnwick.results();
    EXPECT_TRUE(tarnwick.problems().ends_with("messages: failed (/usr/bin/unzip " + library +
                                              "SMS.zip -d /var/tmp/: ended with status 9)\n"));
}

TEST(Endings, ARunThatMayFillTheDiskNeedsAConfirmation) {
    constexpr std::int64_t dataSize = 1 << 20;
    const std::string pictures = "/var/mobile/Media/DCIM/picture";
    const auto isRefusedWith = [&](const std::string& words, std::int64_t free) {
        CommandLineRun tarnwick;
        tarnwick.folder.put(pictures, std::string(dataSize, 'x'));
        tarnwick.folder.put("/var/mobile/Library/Notes/note", "");
        tarnwick.folder.put(library + "archived", std::string(dataSize, 'x'));
        EXPECT_EQ(std::system(("cd " + tarnwick.folder.path() + library +
                               " && zip -q DCIM.zip archived && rm archived")
                                  .c_str()),
                  0);
        tarnwick.files.freeElsewhere = free;
        const bool isRefused = tarnwick(words) == WrongUsage;
        EXPECT_EQ(tarnwick.diary.changes().empty(), isRefused);
        EXPECT_EQ(isRefused, tarnwick.problems().find("--yes") != std::string::npos);
        EXPECT_EQ(tarnwick.problems().find("this may take up to") != std::string::npos,
                  isRefused || words.ends_with("--yes"));
        return isRefused;
    };
    // A copy and an archive of the same size; what is unpacked, over pictures of that size; and the
    // blocks of folders.
    constexpr std::int64_t folders = 1 << 15;
    for (const auto& [words, needed] :
         std::map<std::string, std::int64_t>{{"save photos", 2 * dataSize},
                                             {"save all", 2 * dataSize},
                                             {"restore photos", dataSize}}) {
        EXPECT_TRUE(isRefusedWith(words, needed - 1)) << words;
        EXPECT_FALSE(isRefusedWith(words, needed + folders)) << words;
        EXPECT_FALSE(isRefusedWith(words + " --yes", 0)) << words;
    }
    EXPECT_FALSE(isRefusedWith("save notes", folders));
}

TEST(Endings, AtATerminalAPersonMayGoOnThoughTheDiskMayGetFull) {
    const Terminal terminal;
    for (const std::string answer : {"y\n", "\n"}) {
        CommandLineRun tarnwick;
        tarnwick.terminal = terminal.program;
        tarnwick.folder.put("/var/mobile/Library/Notes/note", "note");
        tarnwick.files.freeElsewhere = 0;
        terminal.type(answer);
        tarnwick("save notes");
        EXPECT_EQ(tarnwick.diary.changes().empty(), answer == "\n");
    }
}

TEST(Endings, SizesAreAddedUp) {
    CommandLineRun tarnwick;
    tarnwick.folder.put(library + "Notes.zip", "zip");
    tarnwick.runner.act = [&](const std::string& line) { saveWell(tarnwick, line); };
    EXPECT_EQ(tarnwick("size notes photos notes"), AllDone);
    EXPECT_EQ(tarnwick.results(),
              "Backup Size: The \"Notes\" backup size is : 3.00 B\n"
              "Backup Size: The \"Photos / Videos\" backup size is : 10.00 B\nTotal: 13.00 B\n");
    EXPECT_EQ(tarnwick("size all"), AllDone);
    EXPECT_TRUE(tarnwick.results().ends_with("Total: 58.00 B\n")) << tarnwick.results();
}

}  // namespace
}  // namespace tarnwick::testing
