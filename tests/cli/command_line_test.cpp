#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <sstream>

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
        {"folders Tarnwick CydiaSources", "folders takes one word only"},
        {"reboot now", "reboot takes no more words"},
        {"save all --dry-rum", "there is no option \"--dry-rum\"; did you mean \"--dry-run\" ?"},
        {"frobnicate", "there is no command \"frobnicate\""},
        {"chk", "there is no command \"chk\"; did you mean \"check\" ?"},
        {"save xyz", "there is no word for save \"xyz\""},
        {"restore notes --then", "--then needs a value: respring|reboot|nothing"},
        {"restore notes --then --yes", "--then needs a value: respring|reboot|nothing"},
        {"mail --to=", "--to needs a value: ADDRESS"},
        {"reboot --yes=no", "--yes takes no value"},
        {"save notes --then reboot", "save does not know --then"},
        {"list --dry-run", "list does not know --dry-run"},
        {"help savee", "there is no word for help \"savee\"; did you mean \"save\" ?"},
    };
    for (const auto& [words, fault] : rows) {
        CommandLineRun tarnwick;
        EXPECT_EQ(tarnwick(words), WrongUsage) << words;
        EXPECT_EQ(tarnwick.problems(),
                  "tarnwick: " + std::string(fault) + "\nTry \"tarnwick --help\".\n");
        EXPECT_TRUE(tarnwick.diary.entries.empty()) << words;
    }
}

TEST(CommandLine, HelpFitsAScreenAndNamesWhatTheCommandKnows) {
    CommandLineRun tarnwick;
    std::string all;
    for (const Command& command : commandTable(ItemCatalogue())) {
        EXPECT_EQ(tarnwick("help " + command.name), AllDone);
        const std::string help = tarnwick.results();
        for (const Option& option : optionTable())
            EXPECT_EQ(help.find("  " + option.word) != std::string::npos ||
                          help.find(", " + option.word) != std::string::npos,
                      knowsOption(command, option))
                << command.name << option.word;
        EXPECT_EQ(tarnwick(command.name + " --help"), AllDone);
        EXPECT_EQ(tarnwick.results(), help);
        all += help;
    }
    EXPECT_EQ(tarnwick("help"), AllDone);
    const std::string whole = tarnwick.results();
    EXPECT_EQ(tarnwick("--help"), AllDone);
    EXPECT_EQ(tarnwick.results(), whole);
    std::istringstream lines(all + whole);
    for (std::string line; std::getline(lines, line);)
        EXPECT_LE(line.size(), 79U) << line;
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
    for (const char* words :
         {"list", "check --archives-only", "faq", "save all --dry-run", "storage"})
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

bool knowsYes(const std::string& words) {
    const auto commands = commandTable(ItemCatalogue());
    const auto& options = commandOf(commands, words.substr(0, words.find(' ')))->options;
    return std::ranges::count(options, "--yes") > 0;
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
        tarnwick(knowsYes(verb) ? verb + " --yes" : verb);
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
    tarnwick.folder.put(root + "/CydiaSources/sources.list", "deb");
    EXPECT_EQ(tarnwick("restore sources accounts --dry-run --then reboot"), AllDone);
    EXPECT_TRUE(tarnwick.results().starts_with(
        "create file: /etc/apt/sources.list.d/TWKSources.list\n"
        "write: /etc/apt/sources.list.d/TWKSources.list\nrun: /usr/bin/unzip"));
    EXPECT_TRUE(tarnwick.results().ends_with("run: /sbin/reboot\n"));
}

TEST(CommandLine, ARehearsalNamesAMissingBackup) {
    CommandLineRun tarnwick;
    EXPECT_EQ(tarnwick("restore sources packages notes --dry-run"), NotAllDone);
    EXPECT_EQ(tarnwick.problems(),
              "tarnwick: there is no saved list of sources to put back\n"
              "tarnwick: there is no backup of packages\ntarnwick: there is no backup of notes\n");
    tarnwick.folder.put(library + "Notes.zip", "zip");
    EXPECT_EQ(tarnwick("restore all --dry-run"), AllDone) << "it passes over what is missing";
    EXPECT_NE(tarnwick.problems().find("there is no backup of photos\n"), std::string::npos);
    EXPECT_EQ(tarnwick.problems().find("notes"), std::string::npos);
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
        for (const std::string answer : {"y\n", "YES\n", "n\n", "\n"}) {
            CommandLineRun tarnwick;
            tarnwick.terminal = terminal.program;
            tarnwick.folder.putEveryArchive();
            terminal.type(answer);
            EXPECT_EQ(tarnwick(words), AllDone);
            EXPECT_EQ(tarnwick.diary.changes().back() == accepted,
                      answer.size() > 1 && answer != "n\n")
                << words;
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
    EXPECT_EQ(tarnwick("check --archives-only"), NotAllDone);
    EXPECT_TRUE(tarnwick.problems().starts_with("Preferences.zip: missing\nAccounts.zip: "));
    tarnwick.folder.put(library + "Notes.zip", "zip");
    EXPECT_EQ(tarnwick("check --archives-only notes"), AllDone);
    EXPECT_EQ(tarnwick.results(), "Notes.zip: good\n");
    EXPECT_EQ(tarnwick.diary.changes(),
              Entries{"run: /usr/bin/unzip -tqq " + library + "Notes.zip"});
    tarnwick.runner.status = 3 << 8;
    EXPECT_EQ(tarnwick("check notes photos --archives-only"), NotAllDone);
    EXPECT_EQ(tarnwick.problems(),
              "Notes.zip: damaged\nDCIM.zip: missing\nPhotoData.zip: missing\n");
    tarnwick.runner.status = 127 << 8;
    EXPECT_EQ(tarnwick("check --archives-only notes"), NotAllDone);
    EXPECT_EQ(tarnwick.problems(), "Notes.zip: cannot be tested\n");
}

TEST(CommandLine, ListShowsWhatIsThereAndWhatIsNot) {
    CommandLineRun tarnwick;
    EXPECT_EQ(tarnwick("list"), AllDone);
    EXPECT_EQ(tarnwick.results(), "The safeguard folder is empty.\n");
    tarnwick.folder.putEveryArchive();
    tarnwick.folder.put(root + "/CydiaSources/cydia.list", "deb");
    tarnwick.folder.put(library + "b\n\033[2J\u009B\x7F\xFF\u00E9\".zip", "");
    tarnwick.folder.put(library + "a.zip", std::string(1024, 'x'));
    for (const char* gone : {"SMS.zip", "PhotoData.zip"})
        std::filesystem::remove(tarnwick.folder.path() + library + gone);
    std::filesystem::create_symlink("nowhere", tarnwick.folder.path() + library + "SMS.zip");
    EXPECT_EQ(tarnwick("list"), AllDone);
    for (const char* line :
         {"1.00 KB  TarnwickLibrary/a.zip\n",
          "0.00 B  \"TarnwickLibrary/b\\n\\033[2J\\302\\233\\177\\377\u00E9\\\".zip\"\n",
          "broken link  TarnwickLibrary/SMS.zip\n", "1.22 KB  in all\n"})
        EXPECT_NE(tarnwick.results().find(line), std::string::npos) << line << tarnwick.results();
    EXPECT_TRUE(tarnwick.results().ends_with("\nNot saved: packages, messages, photos\n"));
    // A file in a folder's place is there but cannot be read as one.
    std::filesystem::remove(tarnwick.folder.path() + root + "/CydiaPackages");
    tarnwick.folder.put(root + "/CydiaPackages", "");
    EXPECT_EQ(tarnwick("list"), NotAllDone);
    tarnwick.isRoot = false;
    EXPECT_EQ(tarnwick("list"), NotRoot);
}

}  // namespace
}  // namespace tarnwick::testing
