#include <gtest/gtest.h>

#include "cli/CommandLine.h"
#include "cli/CommandTable.h"
#include "core/JoinedText.h"
#include "guard/RunLock.h"
#include "support/CommandLineRun.h"
#include "support/Events.h"
#include "support/Operations.h"
#include "support/Terminal.h"

namespace tarnwick::testing {
namespace {

const std::string root = "/var/mobile/Library/Preferences/Tarnwick";

TEST(CommandLine, WrongUsageNamesTheNearestWordAndDoesNothing) {
    const std::pair<const char*, const char*> rows[] = {
        {"", "say what to do"},
        {"sav all", "there is no command \"sav\"; did you mean \"save\" ?"},
        {"save notes fhotos", "there is no word for save \"fhotos\"; did you mean \"photos\" ?"},
        {"remove", "remove needs one of: backups, sources-list"},
        {"size notes photos", "size takes one word only"},
        {"reboot now", "reboot takes no more words"},
        {"save all --dry", "there is no option \"--dry\"; did you mean \"--dry-run\" ?"},
    };
    for (const auto& [words, fault] : rows) {
        CommandLineRun tarnwick;
        EXPECT_EQ(tarnwick(words), WrongUsage) << words;
        EXPECT_EQ(tarnwick.problems(),
                  "tarnwick: " + std::string(fault) + "\nTry \"tarnwick --help\".\n");
        EXPECT_TRUE(tarnwick.diary.entries.empty()) << words;
    }
}

TEST(CommandLine, WhatChangesTheDeviceNeedsRootAndNoOtherRun) {
    CommandLineRun tarnwick;
    for (const Command& command : commandTable(ItemCatalogue())) {
        if (command.reach == Reach::Looks)
            continue;
        const std::string words =
            command.name + (command.fewestWords > 0 ? " " + command.words.back() : "");
        tarnwick.isRoot = false;
        EXPECT_EQ(tarnwick(words), NotRoot) << words;
        EXPECT_EQ(tarnwick.problems(), "tarnwick: " + command.name + " needs root\n");
        tarnwick.isRoot = true;
        const RunLock other(tarnwick.lockPath);
        EXPECT_EQ(tarnwick(words), RunUnderWay) << words;
        EXPECT_EQ(tarnwick.problems(), "tarnwick: another run is under way\n");
        EXPECT_TRUE(tarnwick.diary.entries.empty()) << words;
    }
    tarnwick.isRoot = false;
    tarnwick.folder.putEveryArchive();
    for (const char* words : {"list", "check", "faq", "save all --dry-run", "storage"})
        EXPECT_EQ(tarnwick(words), AllDone) << words;
    EXPECT_EQ(tarnwick.results(), "Total: 64.00 GB\nFree: 12.50 GB\n");
}

TEST(CommandLine, SavesTheNamedTargetsInTheirOrder) {
    CommandLineRun tarnwick;
    tarnwick.runner.act = [&](const std::string& line) {
        if (line.starts_with("zip"))
            tarnwick.folder.put(library + "Notes.zip", "zip");
    };
    EXPECT_EQ(tarnwick("save packages calendar notes"), NotAllDone);
    EXPECT_EQ(tarnwick.results(),
              "Cydia Packages Backup: Backup done !\nNotes Backup: Backup done !\n");
    EXPECT_EQ(
        tarnwick.problems(),
        "Calendar Backup Error: There was an error during the Calendar backup. Nothing has been "
        "done. Please try again !\n");
    EXPECT_EQ(tarnwick.diary.changes().front(), "create folder: " + root);
}

TEST(CommandLine, ARehearsalPrintsWhatTheRunDoesAndDoesNothing) {
    for (const auto& [verb, events] : literalEvents()) {
        if (verb.find(',') != std::string::npos)
            continue;
        CommandLineRun tarnwick;
        if (!verb.starts_with("size"))
            tarnwick.folder.putEveryArchive();
        tarnwick.folder.put(savedPackages, "");
        tarnwick.folder.put(ownList, "deb");
        EXPECT_EQ(tarnwick(verb + " --dry-run"), AllDone) << verb;
        const Entries changes = changesIn(events);
        EXPECT_EQ(tarnwick.results(), joined(changes, "\n") + "\n") << verb;
        EXPECT_TRUE(tarnwick.diary.changes().empty()) << verb;
        tarnwick(verb + " --yes --then nothing");
        EXPECT_EQ(tarnwick.diary.changes(), changes) << verb;
    }
}

TEST(CommandLine, ARehearsalTellsCopiesAndWrites) {
    CommandLineRun tarnwick;
    tarnwick.folder.putEveryArchive();
    EXPECT_EQ(tarnwick("save sources --dry-run --json"), AllDone);
    EXPECT_EQ(tarnwick.results(), "{\"copy\":\"/etc/apt/sources.list.d/cydia.list\",\"to\":\"" +
                                      root + "/CydiaSources/cydia.list\"}\n");
    tarnwick.folder.put(cache, "deb");
    EXPECT_EQ(tarnwick("restore sources accounts --dry-run --then reboot"), AllDone);
    EXPECT_TRUE(tarnwick.results().starts_with(
        "create file: /etc/apt/sources.list.d/TWKSources.list\n"
        "write: /etc/apt/sources.list.d/TWKSources.list\nrun: /usr/bin/unzip"));
    EXPECT_TRUE(tarnwick.results().ends_with("run: /sbin/reboot\n"));
}

TEST(CommandLine, ConfirmationsAreRefusedWithoutATerminal) {
    for (const char* words :
         {"restore all", "remove backups", "remove sources-list", "respring", "reboot"}) {
        CommandLineRun tarnwick;
        EXPECT_EQ(tarnwick(words), WrongUsage) << words;
        EXPECT_NE(tarnwick.problems().find("--yes"), std::string::npos) << words;
        EXPECT_TRUE(tarnwick.diary.changes().empty()) << words;
    }
}

TEST(CommandLine, TheOfferIsClosedUnlessThenSaysOtherwise) {
    const auto lastChange = [](const std::string& words) {
        CommandLineRun tarnwick;
        tarnwick.folder.putEveryArchive();
        EXPECT_EQ(tarnwick(words), AllDone) << words;
        EXPECT_EQ(tarnwick.problems(), "") << "nobody is asked";
        return tarnwick.diary.changes().back();
    };
    const std::string springBoard = "run: chown -R mobile:mobile /var/mobile/Library/SpringBoard";
    EXPECT_EQ(lastChange("restore accounts springboard"), springBoard);
    EXPECT_EQ(lastChange("restore springboard --then nothing"), springBoard);
    EXPECT_EQ(lastChange("restore springboard --then respring"),
              "run: /usr/bin/killall backboardd");
    EXPECT_EQ(lastChange("restore all --yes --then reboot"), "run: /sbin/reboot");
    // Nothing is offered, so there is nothing to answer.
    EXPECT_EQ(lastChange("restore notes --then reboot"),
              "run: chown -R mobile:mobile /var/mobile/Library/Notes");
}

TEST(CommandLine, AtATerminalTheStrongestOfSeveralOffersIsAsked) {
    const Terminal terminal;
    const std::pair<const char*, const char*> rows[] = {
        {"restore springboard accounts springboard", "run: /sbin/reboot"},
        {"restore springboard notes", "run: /usr/bin/killall backboardd"}};
    for (const auto& [words, accepted] : rows)
        for (const std::string answer : {"y\n", "n\n", "\n"}) {
            CommandLineRun tarnwick;
            tarnwick.terminal = terminal.program;
            tarnwick.folder.putEveryArchive();
            terminal.type(answer);
            EXPECT_EQ(tarnwick(words), AllDone);
            EXPECT_EQ(tarnwick.diary.entries.back() == accepted, answer == "y\n") << words;
        }
}

TEST(CommandLine, AnInterruptedRunSaysWhatToRunAgain) {
    CommandLineRun tarnwick;
    tarnwick.end = SupervisedRun::End::Interrupted;
    EXPECT_EQ(tarnwick("save photos tweaks-prefs"), Interrupted);
    EXPECT_EQ(tarnwick.problems(),
              "tarnwick: interrupted; to be run again: tarnwick save photos tweaks-prefs\n");
    tarnwick.folder.putEveryArchive();
    EXPECT_EQ(tarnwick("restore notes"), Interrupted);
    EXPECT_EQ(tarnwick.diary.changes(),
              Entries{"run: chown -R mobile:mobile /var/mobile/Library/Notes"})
        << "what was begun goes back to its owner";
    tarnwick.end = SupervisedRun::End::Crashed;
    EXPECT_EQ(tarnwick("save notes"), NotAllDone);
    EXPECT_EQ(tarnwick.problems(),
              "tarnwick: the run ended unexpectedly; to be run again: tarnwick save notes\n");
}

TEST(CommandLine, WhatACutOffRunLeftIsClearedAndTold) {
    CommandLineRun tarnwick;
    for (const char* scratch : {"/var/tmp/var/half", "/var/tmp/Preferences/half"})
        tarnwick.folder.put(scratch, "");
    tarnwick.folder.put(savedPackages, "");
    tarnwick.folder.put(savedPackages + ".previous", "good");
    RunLock(tarnwick.lockPath).record("restore notes");
    tarnwick("list");
    EXPECT_EQ(tarnwick.problems(),
              "tarnwick: The last run was cut off: restore notes. Run it again.\n");
    EXPECT_EQ(tarnwick("folders"), AllDone);
    EXPECT_EQ(tarnwick.problems(), "") << "told once";
    EXPECT_EQ(tarnwick.folder.content("/var/tmp/var/half"), "(none)");
    EXPECT_EQ(tarnwick.folder.content("/var/tmp/Preferences/half"), "(none)");
    EXPECT_EQ(tarnwick.folder.content(savedPackages), "good");
}

TEST(CommandLine, ARestoreThatLostItsTerminalIsTold) {
    CommandLineRun tarnwick;
    tarnwick.folder.putEveryArchive();
    tarnwick.isHungUp = true;
    EXPECT_EQ(tarnwick("restore notes"), AllDone);
    EXPECT_EQ(tarnwick.folder.content("log"),
              "Notes Restoration: Restoration done !\ntarnwick: it ended with status 0\n");
    tarnwick("list");
    EXPECT_EQ(tarnwick.problems(),
              "tarnwick: Nobody saw the end of the last run: restore notes. Its result is in "
              "/var/lib/tarnwick.log.\n");
}

TEST(CommandLine, WhatWasNotSavedOrPutBackIsTold) {
    CommandLineRun tarnwick;
    EXPECT_EQ(tarnwick("save sources"), NotAllDone);
    EXPECT_EQ(tarnwick.problems(),
              "tarnwick: " + cydiaList + " cannot be read: No such file or directory\n");
    tarnwick.folder.put(savedPackages, "good");
    tarnwick.runner.act = [&](const std::string&) { tarnwick.folder.put(savedPackages, ""); };
    EXPECT_EQ(tarnwick("save packages"), NotAllDone);
    EXPECT_EQ(tarnwick.problems(), "tarnwick: " + savedPackages +
                                       " could not be saved; the earlier one is still there\n");
    EXPECT_EQ(tarnwick.folder.content(savedPackages), "good");
    EXPECT_EQ(tarnwick("restore all --yes"), NotAllDone);
    EXPECT_EQ(tarnwick.problems(), "tarnwick: there is no archive to restore\n");
    tarnwick.folder.put(cydiaList, "deb");
    EXPECT_EQ(tarnwick("restore sources"), WrongUsage) << "this would only delete a list";
    EXPECT_EQ(tarnwick("restore sources --yes"), NotAllDone);
    CommandLineRun other;
    other.folder.put(root + "/CydiaSources", "a plain file");
    EXPECT_EQ(other("folders"), NotAllDone);
}

TEST(CommandLine, CheckNamesEachArchive) {
    CommandLineRun tarnwick;
    EXPECT_EQ(tarnwick("check"), NotAllDone);
    EXPECT_TRUE(tarnwick.problems().starts_with("Preferences.zip: missing\nAccounts.zip: "));
    tarnwick.folder.put(library + "Notes.zip", "zip");
    EXPECT_EQ(tarnwick("check notes"), AllDone);
    EXPECT_EQ(tarnwick.results(), "Notes.zip: good\n");
    EXPECT_EQ(tarnwick.diary.changes(),
              Entries{"run: /usr/bin/unzip -tqq " + library + "Notes.zip"});
    tarnwick.runner.status = 3 << 8;
    EXPECT_EQ(tarnwick("check notes photos"), NotAllDone);
    EXPECT_EQ(tarnwick.problems(),
              "Notes.zip: damaged\nDCIM.zip: missing\nPhotoData.zip: missing\n");
    tarnwick.runner.status = 127 << 8;
    EXPECT_EQ(tarnwick("check notes"), NotAllDone);
    EXPECT_EQ(tarnwick.problems(), "Notes.zip: cannot be tested\n");
}

TEST(CommandLine, ListShowsWhatIsThere) {
    CommandLineRun tarnwick;
    EXPECT_EQ(tarnwick("list"), AllDone);
    EXPECT_EQ(tarnwick.results(), "The safeguard folder is empty.\n");
    tarnwick.folder.put(library + "b\033[2J\u009B\x7F\xFF\u00E9.zip", "");
    tarnwick.folder.put(library + "a.zip", std::string(1024, 'x'));
    EXPECT_EQ(tarnwick("list"), AllDone);
    EXPECT_NE(tarnwick.results().find("1.00 KB  TarnwickLibrary/a.zip\n"), std::string::npos);
    EXPECT_TRUE(tarnwick.results().ends_with("0.00 B  TarnwickLibrary/b?[2J???\u00E9.zip\n"));
    // A file in a folder's place is there but cannot be read as one.
    tarnwick.folder.put(root + "/CydiaSources", "");
    EXPECT_EQ(tarnwick("list"), NotAllDone);
    tarnwick.isRoot = false;
    EXPECT_EQ(tarnwick("list"), NotRoot);
}

}  // namespace
}  // namespace tarnwick::testing
