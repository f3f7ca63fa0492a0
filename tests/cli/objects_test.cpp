#include <gtest/gtest.h>

#include <filesystem>
#include <nlohmann/json.hpp>
#include <set>
#include <sstream>

#include "cli/JsonFields.h"
#include "support/CommandLineRun.h"
#include "support/Operations.h"

namespace tarnwick::testing {
namespace {

// The names of the fields of all objects in the lines.
void addNames(const std::string& lines, std::set<std::string>& names) {
    std::istringstream stream(lines);
    for (std::string line; std::getline(stream, line);) {
        const auto object = nlohmann::json::parse(line);
        for (const auto& [name, value] : object.items())
            names.insert(name);
    }
}

TEST(Objects, EachFieldOfAnObjectIsOneThatIsDescribed) {
    CommandLineRun tarnwick;
    std::set<std::string> printed, described;
    tarnwick.folder.putEveryArchive();
    tarnwick.folder.put(savedPackages, "");
    std::filesystem::create_symlink("nowhere", tarnwick.folder.path() + library + "link");
    tarnwick.folder.put("/var/mobile/Library/Safari/bookmarks", "not saved");
    std::filesystem::remove(tarnwick.folder.path() + library + "Safari.zip");
    tarnwick.folder.put("sendmail", "#!/bin/sh\ncat >/dev/null\n");
    std::filesystem::permissions(tarnwick.mailerProgram, std::filesystem::perms::owner_all);
    tarnwick.runner.act = [&](const std::string& line) {
        tarnwick.runner.status = line.starts_with("cp -R /var/mobile/Library/Notes") ? 1 << 8 : 0;
    };
    for (const char* words : {"save sources packages notes accounts",
                              "restore notes springboard",
                              "restore all",
                              "list",
                              "check",
                              "check --archives-only",
                              "compare",
                              "export copy",
                              "import copy",
                              "export --verify copy",
                              "size notes accounts",
                              "storage",
                              "folders",
                              "remove backups",
                              "faq",
                              "help",
                              "--version",
                              "frobnicate",
                              "mail --to me@example.org",
                              "save all --dry-run",
                              "save sources --dry-run",
                              "restore sources --dry-run",
                              "folders --dry-run"}) {
        tarnwick(words + std::string(" --json"));
        addNames(tarnwick.results() + tarnwick.problems(), printed);
        tarnwick.folder.put(cache, "deb");
    }
    tarnwick.files.freeElsewhere = 0;
    tarnwick.folder.put("/var/mobile/Library/Notes/note", "note");
    tarnwick("save notes --json");
    addNames(tarnwick.problems(), printed);
    tarnwick.end = SupervisedRun::End::Interrupted;
    tarnwick("save notes --json");
    addNames(tarnwick.problems(), printed);
    for (const auto& [name, meaning] : jsonFieldTable())
        described.insert(name);
    EXPECT_EQ(printed, described);
}

TEST(Objects, ObjectsHaveFacts) {
    CommandLineRun tarnwick;
    for (const char* archive : {"Notes.zip", "SpringBoard.zip"})
        tarnwick.folder.put(library + archive, TemporaryFolder::emptyArchive());
    tarnwick.runner.act = [&](const std::string& line) {
        if (line.find("unzip") != std::string::npos)
            tarnwick.folder.put("/var/tmp" + library + "SpringBoard/data", "");
    };
    EXPECT_EQ(tarnwick("restore springboard photos --json"), NotAllDone);
    EXPECT_EQ(tarnwick.results(),
              R"({"title":"SpringBoard Restoration","message":"Restoration done ! Do you want to )"
              R"(respring now ?","offer":"respring"})"
              "\n"
              R"({"item":"springboard","outcome":"restored"})"
              "\n"
              R"({"item":"photos","outcome":"no backup"})"
              "\n");
    EXPECT_EQ(tarnwick("size notes --json"), AllDone);
    EXPECT_NE(tarnwick.results().find(R"("item":"notes","bytes":22})"), std::string::npos);
    EXPECT_EQ(tarnwick("storage --json"), AllDone);
    EXPECT_EQ(tarnwick.results(), "{\"totalBytes\":68719476736,\"freeBytes\":13421772800}\n");
    EXPECT_EQ(tarnwick("reboot --json"), WrongUsage);
    EXPECT_EQ(tarnwick.problems(),
              "{\"problem\":\"this needs a confirmation; without a terminal, use --yes\","
              "\"question\":\"Do you really want to Reboot your device ?\"}\n");
    EXPECT_EQ(tarnwick("list --json"), AllDone);
    EXPECT_NE(
        tarnwick.results().find(R"("file":"TarnwickLibrary/Notes.zip","bytes":22,"modified":")"),
        std::string::npos);
    EXPECT_NE(tarnwick.results().find(R"(Z","item":"notes"})"), std::string::npos);
    EXPECT_NE(tarnwick.results().find(R"({"files":2,"totalBytes":44,"notSaved":["sources",)"),
              std::string::npos);
}

}  // namespace
}  // namespace tarnwick::testing
