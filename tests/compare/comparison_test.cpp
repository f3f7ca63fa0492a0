#include "compare/Comparison.h"

#include <gtest/gtest.h>
#include <sys/stat.h>
#include <zip.h>

#include <filesystem>
#include <map>

#include "compare/ArchiveIndex.h"
#include "core/SafeguardPaths.h"
#include "support/CommandLineRun.h"

namespace tarnwick::testing {
namespace {

namespace fs = std::filesystem;

using Contents = std::map<std::string, std::string>;

const std::string notes = "/var/mobile/Library/Notes/";
const std::string library = std::string(paths::archiveFolder) + "/";

// An archive as a save makes it: of the copy in the folder `staging`.
void zip(const TemporaryFolder& folder, const std::string& name, const std::string& staging,
         const Contents& files) {
    fs::create_directories(folder.path() + library);
    zip_t* const archive =
        zip_open((folder.path() + library + name).c_str(), ZIP_CREATE | ZIP_TRUNCATE, nullptr);
    zip_dir_add(archive, (staging.substr(1) + "/").c_str(), 0);
    for (const auto& [file, content] : files) {
        const std::string entry = staging.substr(1) + "/" + file;
        if (file.ends_with('/'))
            zip_dir_add(archive, entry.c_str(), 0);
        else
            zip_file_add(archive, entry.c_str(),
                         zip_source_buffer(archive, content.data(), content.size(), 0), 0);
    }
    EXPECT_EQ(zip_close(archive), 0);
}

class OnDevice : public ::testing::Test {
protected:
    // Saves the notes as they stand.
    void saveNotes() const {
        Contents files;
        const fs::path source = folder.path() + notes;
        for (const auto& entry : fs::recursive_directory_iterator(
                 source, fs::directory_options::follow_directory_symlink)) {
            const std::string name = entry.path().lexically_relative(source);
            if (entry.is_directory())
                files[name + "/"] = "";
            else if (entry.is_regular_file())
                files[name] = folder.content(notes + name);
        }
        zip(folder, "Notes.zip", library + "Notes", files);
    }

    std::map<std::string, FileState> notesNow() const {
        std::map<std::string, FileState> states;
        const auto comparisons = compare(*ItemCatalogue().find("Notes"), folder.path());
        for (const ComparedFile& file : comparisons.front().files)
            states[file.path.substr(notes.size())] = file.state;
        return states;
    }

    CommandLineRun tarnwick;
    const TemporaryFolder& folder = tarnwick.folder;
};

TEST_F(OnDevice, EveryFileHasTheStateThatARestoreWouldMeet) {
    for (const char* name : {"same", "longer", "altered", "gone", "folder/same", "empty", "\xff\n",
                             "r\u00e9sum\u00e9", "-rf *", "into a folder"})
        folder.put(notes + name, name);
    fs::create_directories(folder.path() + notes + "no files/");
    saveNotes();
    folder.put(notes + "longer", "longer than before");
    folder.put(notes + "altered", "aLtered");
    folder.put(notes + "new", "");
    fs::create_directories(folder.path() + notes + "new folder/");
    for (const char* name : {"gone", "into a folder"})
        fs::remove(folder.path() + notes + name);
    fs::create_directories(folder.path() + notes + "into a folder");
    using enum FileState;
    EXPECT_EQ(notesNow(), (std::map<std::string, FileState>{{"", Same},
                                                            {"-rf *", Same},
                                                            {"altered", Changed},
                                                            {"empty", Same},
                                                            {"folder/", Same},
                                                            {"folder/same", Same},
                                                            {"gone", OnlyArchived},
                                                            {"into a folder", OnlyArchived},
                                                            {"into a folder/", NotSaved},
                                                            {"longer", Changed},
                                                            {"new", NotSaved},
                                                            {"new folder/", NotSaved},
                                                            {"no files/", Same},
                                                            {"r\u00e9sum\u00e9", Same},
                                                            {"same", Same},
                                                            {"\xff\n", Same}}));
}

TEST_F(OnDevice, LinksAreFollowedAndWhatHasNoContentsIsNoFile) {
    folder.put(notes + "file", "text");
    folder.put("/var/mobile/Media/far", "far");
    const std::string place = folder.path() + notes;
    fs::create_symlink("file", place + "link");
    fs::create_directory_symlink(folder.path() + "/var/mobile/Media", place + "media");
    saveNotes();
    fs::create_symlink("nowhere", place + "dangling");
    fs::create_symlink("loop", place + "loop");
    fs::create_directory_symlink(".", place + "itself");
    ::mkfifo((place + "pipe").c_str(), 0600);
    for (const auto& [path, state] : notesNow())
        EXPECT_EQ(state, FileState::Same) << path;
    folder.put("/var/mobile/Media/far", "fir");
    EXPECT_EQ(notesNow().at("media/far"), FileState::Changed);
    if (::geteuid() != 0) {
        fs::permissions(place + "file", fs::perms::none);
        EXPECT_EQ(notesNow().at("file"), FileState::Unreadable);
    }
}

TEST_F(OnDevice, TheSafeguardFolderIsNoPartOfThePreferences) {
    folder.put("/var/mobile/Library/Preferences/a.plist", "a");
    zip(folder, "Preferences.zip", "/var/tmp/Preferences", {{"a.plist", "a"}});
    EXPECT_EQ(tarnwick("compare tweaks-prefs"), AllDone);
    EXPECT_EQ(tarnwick.results(), "tweaks-prefs: 2 the same\n");
}

TEST_F(OnDevice, AnArchiveThatCannotBeReadHidesNoOther) {
    folder.put(notes + "a", "a");
    folder.put("/var/mobile/Library/Safari/b", "b");
    folder.put(library + "Notes.zip", "no archive");
    ::mkfifo((folder.path() + library + "SMS.zip").c_str(), 0600);
    EXPECT_EQ(tarnwick("compare notes messages safari voicemails"), NotAllDone);
    EXPECT_EQ(tarnwick.results(),
              "safari: 2 not saved, Safari.zip is missing\nvoicemails: nothing to save\n");
    EXPECT_EQ(tarnwick.problems(),
              "tarnwick: messages: SMS.zip cannot be read: it is no regular file\n"
              "tarnwick: notes: Notes.zip is damaged\n");
}

TEST_F(OnDevice, FilesAreToldWithTheEffectOfARestore) {
    folder.put("/var/wireless/Library/CallHistory/calls", "new");
    zip(folder, "CallHistory.zip", library + "CallHistory", {{"calls", "old"}});
    EXPECT_EQ(tarnwick("compare call-history --verbose"), AllDone);
    EXPECT_EQ(tarnwick.results(),
              "same  /var/wireless/Library/CallHistory/  no restore changes it\n"
              "changed  /var/wireless/Library/CallHistory/calls  no restore changes it\n"
              "call-history: 1 the same, 1 changed since the save\n");
    zip(folder, "Notes.zip", library + "Notes", {{"old", "four"}});
    EXPECT_EQ(tarnwick("compare notes --json"), AllDone);
    EXPECT_TRUE(tarnwick.results().starts_with(
        R"({"item":"notes","archive":"Notes.zip","path":"/var/mobile/Library/Notes/",)"))
        << tarnwick.results();
    EXPECT_NE(tarnwick.results().find(R"("path":"/var/mobile/Library/Notes/old","kind":"file",)"
                                      R"("bytes":0,"archivedBytes":4,"state":"only in the )"
                                      R"(archive","effect":"would come back"})"),
              std::string::npos);
}

TEST_F(OnDevice, AWipeIsAnsweredForWithYesOrWithAllThatIsInItsWay) {
    const std::string cache(paths::cydiaCacheList);
    folder.put(notes + "a", "a");
    saveNotes();
    zip(folder, "Preferences.zip", "/var/tmp/Preferences", {});
    folder.put(cache, "deb one\n\n");
    folder.put(std::string(paths::savedSourcesList), "deb one\n\n");
    folder.put(std::string(paths::packageStates),
               "Package: zip\nStatus: install ok installed\n\nPackage: gone\n"
               "Status: deinstall ok config-files\n");
    folder.put(std::string(paths::savedPackages), "zip:amd64\tinstall\n");
    EXPECT_EQ(tarnwick("check"), AllDone) << tarnwick.problems();
    EXPECT_TRUE(tarnwick.results().starts_with("tweaks-prefs: saved\naccounts: nothing to save\n"));
    EXPECT_TRUE(tarnwick.results().ends_with("packages: saved\nready for a wipe\n"));
    folder.put(notes + "a", "b");
    folder.put("/var/mobile/Library/Safari/b", "b");
    folder.put(cache, "deb two\n");
    folder.put(std::string(paths::savedPackages), "unzip\tinstall\n");
    EXPECT_EQ(tarnwick("check"), NotAllDone);
    EXPECT_EQ(tarnwick.problems(),
              "not ready for a wipe:\nnotes: out of date: 1 changed\nSafari.zip: missing\n"
              "sources: out of date: it lacks deb two\npackages: out of date: it lacks zip\n"
              "to be run: tarnwick save notes safari sources packages\n");
    EXPECT_EQ(tarnwick("check tweaks-prefs"), AllDone);
    EXPECT_EQ(tarnwick.results(), "tweaks-prefs: saved\ntweaks-prefs: ready for a wipe\n");
    tarnwick.runner.status = 127 << 8;
    EXPECT_EQ(tarnwick("check tweaks-prefs"), NotAllDone);
    EXPECT_EQ(tarnwick.problems(),
              "tweaks-prefs: not ready for a wipe:\nPreferences.zip: cannot be tested\n");
}

}  // namespace
}  // namespace tarnwick::testing
