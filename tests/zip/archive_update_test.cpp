#include <gtest/gtest.h>
#include <sys/resource.h>
#include <unistd.h>
#include <zip.h>

#include <algorithm>
#include <csignal>
#include <cstdlib>
#include <filesystem>
#include <map>
#include <memory>
#include <random>

#include "support/TemporaryFolder.h"
#include "zip/ArchiveAttempt.h"
#include "zip/ArchiveUpdate.h"
#include "zip/Deflater.h"
#include "zip/UnfinishedFile.h"

namespace tarnwick::testing {
namespace {

using Archive = std::unique_ptr<zip_t, void (*)(zip_t*)>;

class ArchiveUpdate : public ::testing::Test {
protected:
    std::string path(const std::string& name) const { return folder.path() + "/" + name; }
    std::string entry(const std::string& name) const { return path("tree/" + name).substr(1); }

    ZipStatus update() { return updateArchive({path("a.zip"), path("tree/"), true}, report); }

    // Ends the test's changes to an archive that stands there or is new.
    Archive open(int flags = ZIP_RDONLY) const {
        return {zip_open(path("a.zip").c_str(), flags, nullptr), zip_discard};
    }

    // What libzip unpacks, with its checksum tested; "(none)" if it cannot.
    std::string unpacked(const std::string& name) const {
        const Archive archive = open();
        zip_stat_t status = {};
        if (!archive || zip_stat(archive.get(), name.c_str(), 0, &status) != 0)
            return "(none)";
        std::string text(static_cast<std::size_t>(status.size) + 1, '\0');
        zip_file_t* const file = zip_fopen(archive.get(), name.c_str(), 0);
        const zip_int64_t count = zip_fread(file, text.data(), text.size());
        const bool isGood = count >= 0 && zip_fread(file, text.data(), 1) == 0;
        zip_fclose(file);
        text.resize(static_cast<std::size_t>(std::max<zip_int64_t>(count, 0)));
        return isGood ? text : "(none)";
    }

    int methodOf(const std::string& name) const {
        zip_stat_t status = {};
        zip_stat(open().get(), entry(name).c_str(), 0, &status);
        return status.comp_method;
    }

    // The text must outlive the archive.
    static void add(zip_t* archive, const std::string& name, std::string_view text) {
        zip_source_t* const source = zip_source_buffer(archive, text.data(), text.size(), 0);
        zip_file_add(archive, name.c_str(), source, 0);
    }

    TemporaryFolder folder;
    ZipReport report{true};
};

std::string noise(std::size_t length) {
    std::mt19937 random(static_cast<std::mt19937::result_type>(length));
    std::string text(length, '\0');
    std::ranges::generate(text, [&] { return static_cast<char>(random()); });
    return text;
}

TEST_F(ArchiveUpdate, BringsBackEveryLengthAroundAnEdgeOfABlock) {
    std::map<std::string, std::string> files;
    for (const std::size_t edge :
         {std::size_t(0), std::size_t(65535), blockLength, 3 * blockLength}) {
        for (const std::size_t length : {edge - std::min<std::size_t>(edge, 1), edge, edge + 1}) {
            const std::string number = std::to_string(length);
            files["noise" + number] = noise(length);
            files["zeros" + number] = std::string(length, '\0');
            // Blocks that shrink and blocks that do not, in one stream.
            files["mixed" + number] = std::string(length / 2, 'x') + noise(length - length / 2);
        }
    }
    for (const auto& [name, content] : files)
        folder.put("tree/" + name, content);
    ASSERT_EQ(update(), ZipStatus::Done);
    for (const auto& [name, content] : files)
        EXPECT_TRUE(unpacked(entry(name)) == content) << name;
    EXPECT_EQ(methodOf("noise" + std::to_string(3 * blockLength)), ZIP_CM_STORE);
    EXPECT_EQ(methodOf("mixed" + std::to_string(3 * blockLength)), ZIP_CM_DEFLATE);
}

TEST_F(ArchiveUpdate, KeepsWhatItDoesNotReplace) {
    folder.put("tree/both", "old");
    const std::uint8_t unknown[] = {1, 2, 3};
    {
        Archive archive = open(ZIP_CREATE);
        add(archive.get(), "elsewhere", "kept");
        add(archive.get(), entry("both"), "older");
        zip_set_archive_comment(archive.get(), "of all", 6);
        for (const std::uint64_t index : {0, 1}) {
            zip_file_set_comment(archive.get(), index, "of one", 6, 0);
            zip_file_extra_field_set(archive.get(), index, 0x7777, ZIP_EXTRA_FIELD_NEW, unknown,
                                     sizeof unknown, ZIP_FL_LOCAL | ZIP_FL_CENTRAL);
        }
        ASSERT_EQ(zip_close(archive.release()), 0);
    }
    for (const std::string content : {"new", "newer"}) {
        folder.put("tree/both", content);
        folder.put("tree/übrig", content);
        ASSERT_EQ(update(), ZipStatus::Done);
        EXPECT_EQ(unpacked("elsewhere"), "kept");
        EXPECT_EQ(unpacked(entry("both")), content);
        EXPECT_EQ(unpacked(entry("übrig")), content);
        const Archive archive = open();
        EXPECT_EQ(zip_get_num_entries(archive.get(), 0), 4);
        EXPECT_STREQ(zip_get_archive_comment(archive.get(), nullptr, 0), "of all");
        for (const std::uint64_t index : {0, 1}) {
            EXPECT_STREQ(zip_file_get_comment(archive.get(), index, nullptr, 0), "of one");
            for (const zip_flags_t place : {ZIP_FL_LOCAL, ZIP_FL_CENTRAL})
                EXPECT_EQ(zip_file_extra_fields_count_by_id(archive.get(), index, 0x7777, place),
                          1);
        }
        // The times of the file, once.
        EXPECT_EQ(zip_file_extra_fields_count_by_id(archive.get(), 1, 0x5455, ZIP_FL_LOCAL), 1);
    }
}

TEST_F(ArchiveUpdate, HealsADamagedArchiveAndSetsTheOldOneAside) {
    folder.put("tree/file", noise(3000));
    folder.put("tree/text", std::string(3000, 't'));
    ASSERT_EQ(update(), ZipStatus::Done);
    const std::string good = folder.content("a.zip");
    std::mt19937 random(1);
    for (int round = 0; round < 300; ++round) {
        std::string damaged = good;
        if (round % 3 == 0)
            damaged.resize(random() % damaged.size());
        for (int flip = 0; flip < 3 && !damaged.empty(); ++flip)
            damaged[random() % damaged.size()] ^= static_cast<char>(1 << random() % 8);
        folder.put("a.zip", damaged);
        std::filesystem::remove(path("a.zip.damaged"));
        ASSERT_EQ(update(), ZipStatus::Done) << round;
        EXPECT_TRUE(unpacked(entry("file")) == noise(3000)) << round;
        const std::string aside = folder.content("a.zip.damaged");
        EXPECT_TRUE(aside == "(none)" || aside == damaged) << round;
    }
}

// Without other threads, as there is little data, and with few descriptors, as there are many
// files.
TEST_F(ArchiveUpdate, OpensOneSmallFileAtATime) {
    for (int number = 0; number < 200; ++number)
        folder.put("tree/" + std::to_string(number), "a");
    const auto updateWithFewDescriptors = [&] {
        const struct rlimit limit = {50, 50};
        ::setrlimit(RLIMIT_NOFILE, &limit);
        std::_Exit(static_cast<int>(update()));
    };
    EXPECT_EXIT(updateWithFewDescriptors(), ::testing::ExitedWithCode(0), "");
    EXPECT_EQ(unpacked(entry("199")), "a");
}

// "\x82" is an "é" in the character set in which libzip compares names.
TEST_F(ArchiveUpdate, LeavesANameOutThatLibzipTakesForAnother) {
    folder.put("tree/\x82", "a");
    folder.put("tree/é", "b");
    EXPECT_EQ(update(), ZipStatus::SomeUnreadable);
    EXPECT_EQ(update(), ZipStatus::SomeUnreadable);
    EXPECT_FALSE(std::filesystem::exists(path("a.zip.damaged")));
}

TEST_F(ArchiveUpdate, IsNeitherReadNorWrittenThroughLinks) {
    folder.put("tree/file", "a");
    folder.put("private", "private");
    std::filesystem::create_symlink(path("private"), path("a.zip.unfinished"));
    ASSERT_EQ(update(), ZipStatus::Done);
    std::filesystem::rename(path("a.zip"), path("elsewhere"));
    std::filesystem::create_symlink(path("elsewhere"), path("a.zip"));
    EXPECT_EQ(update(), ZipStatus::CannotRead);
    EXPECT_TRUE(std::filesystem::is_symlink(path("a.zip")));
    EXPECT_EQ(folder.content("private"), "private");
}

TEST_F(ArchiveUpdate, EndsWellWhenAFileChangesBeforeItIsRead) {
    for (const char* name : {"longer", "shorter", "same", "gone"})
        folder.put(std::string("tree/") + name, std::string(2 * blockLength, 'a'));
    auto tree = readFolderTree(path("tree/"), {}, report);
    folder.put("tree/longer", std::string(4 * blockLength, 'a'));
    folder.put("tree/shorter", "a");
    std::filesystem::remove(path("tree/gone"));
    UnfinishedFile file(path("a.zip"));
    {
        ArchiveAttempt first(path("a.zip"), ArchiveFile::OldArchive::Kept, file.number(), tree);
        EXPECT_EQ(first.run(), ArchiveAttempt::Result::FilesLost);
        EXPECT_EQ(first.lostFiles(), std::unordered_set{path("tree/gone")});
    }
    std::erase_if(tree, [&](const TreeEntry& each) { return each.path == path("tree/gone"); });
    ArchiveAttempt second(path("a.zip"), ArchiveFile::OldArchive::Kept, file.number(), tree);
    ASSERT_EQ(second.run(), ArchiveAttempt::Result::Done);
    ASSERT_TRUE(file.putInPlace({}));
    EXPECT_EQ(unpacked(entry("longer")).size(), 2 * blockLength);
    EXPECT_EQ(unpacked(entry("shorter")), "a");
    EXPECT_EQ(unpacked(entry("same")).size(), 2 * blockLength);
}

TEST_F(ArchiveUpdate, LeavesTheOldArchiveWhenTheNewOneCannotBeWritten) {
    folder.put("tree/file", noise(3 * blockLength));
    ASSERT_EQ(update(), ZipStatus::Done);
    const std::string good = folder.content("a.zip");
    folder.put("tree/more", noise(3 * blockLength));
    const auto updateWithLittleSpace = [&] {
        std::signal(SIGXFSZ, SIG_IGN);
        const struct rlimit limit = {4 * blockLength, 4 * blockLength};
        ::setrlimit(RLIMIT_FSIZE, &limit);
        std::_Exit(static_cast<int>(update()));
    };
    EXPECT_EXIT(updateWithLittleSpace(), ::testing::ExitedWithCode(14), "File too large");
    EXPECT_TRUE(folder.content("a.zip") == good);
    EXPECT_FALSE(std::filesystem::exists(path("a.zip.unfinished")));
}

}  // namespace
}  // namespace tarnwick::testing
