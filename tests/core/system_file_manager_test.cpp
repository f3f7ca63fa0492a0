#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>

#include "core/SystemFileManager.h"
#include "support/TemporaryFolder.h"

namespace tarnwick {
namespace {

using testing::TemporaryFolder;

mode_t modeOf(const std::string& path) {
    struct stat status = {};
    return ::stat(path.c_str(), &status) == 0 ? status.st_mode & 07777 : 0;
}

class SystemFileManagerTest : public ::testing::Test {
protected:
    TemporaryFolder folder;
    SystemFileManager files{folder.path()};
};

TEST_F(SystemFileManagerTest, ExistenceFollowsLinks) {
    folder.put("file", "");
    ASSERT_EQ(::symlink("file", (folder.path() + "/good").c_str()), 0);
    ASSERT_EQ(::symlink("nowhere", (folder.path() + "/dangling").c_str()), 0);
    EXPECT_TRUE(files.exists("/good"));
    EXPECT_FALSE(files.exists("/dangling"));
}

TEST_F(SystemFileManagerTest, RemovesAFolderWithAllInItButNotWhatALinkPointsTo) {
    folder.put("kept/file", "kept");
    folder.put("gone/deep/er/file", "");
    ASSERT_EQ(::symlink("../kept", (folder.path() + "/gone/link").c_str()), 0);
    EXPECT_TRUE(files.remove("/gone"));
    EXPECT_FALSE(files.exists("/gone"));
    EXPECT_EQ(folder.content("kept/file"), "kept");
    EXPECT_FALSE(files.remove("/gone"));
}

TEST_F(SystemFileManagerTest, CopiesFilesButNeverOntoWhatIsThereNorWithTheRightsOfTheirOwner) {
    folder.put("source", "text");
    ASSERT_EQ(::chmod((folder.path() + "/source").c_str(), 07755), 0);
    EXPECT_TRUE(files.copy("/source", "/copy"));
    EXPECT_EQ(folder.content("copy"), "text");
    EXPECT_EQ(modeOf(folder.path() + "/copy"), 0755U);
    EXPECT_TRUE(files.writeText("/source", "new"));
    EXPECT_EQ(modeOf(folder.path() + "/source"), 0755U);
    folder.put("file", "old");
    EXPECT_FALSE(files.copy("/source", "/file"));
    EXPECT_EQ(folder.content("file"), "old");
    ASSERT_EQ(::symlink("elsewhere", (folder.path() + "/dangling").c_str()), 0);
    EXPECT_FALSE(files.copy("/file", "/dangling"));
    EXPECT_FALSE(files.createFile("/dangling"));
    EXPECT_EQ(folder.content("elsewhere"), "(none)");
    EXPECT_FALSE(files.copy("/none", "/other"));
}

// A link to a device that never ends was read until there was no memory left.
TEST_F(SystemFileManagerTest, ReadsOnlyRegularFilesOfAModestSizeAndSaysWhyNot) {
    ASSERT_EQ(::symlink("/dev/zero", (folder.path() + "/endless").c_str()), 0);
    ASSERT_EQ(::mkfifo((folder.path() + "/pipe").c_str(), 0600), 0);
    folder.put("large", "");
    ASSERT_EQ(::truncate((folder.path() + "/large").c_str(), (64 << 20) + 1), 0);
    folder.put("bad", "\xFF");
    const std::pair<const char*, int> rows[] = {{"/endless", ELOOP}, {"/pipe", ENOTSUP},
                                                {"/large", EFBIG},   {"/bad", EILSEQ},
                                                {"/", ENOTSUP},      {"/none", ENOENT}};
    for (const auto& [path, reason] : rows) {
        EXPECT_EQ(files.readText(path), std::nullopt) << path;
        EXPECT_EQ(errno, reason) << path;
    }
    EXPECT_FALSE(files.createFile("/pipe"));
}

TEST_F(SystemFileManagerTest, ReadsAWholeText) {
    folder.put("empty", "");
    folder.put("good", std::string(100'000, 'a') + "\u00E9\n");
    EXPECT_EQ(files.readText("/empty"), "");
    EXPECT_EQ(files.readText("/good"), folder.content("good"));
}

TEST_F(SystemFileManagerTest, WritesAllOrNothingAndKeepsTheMode) {
    EXPECT_TRUE(files.writeText("/new", "text"));
    EXPECT_EQ(modeOf(folder.path() + "/new"), 0644U);
    ASSERT_EQ(::chmod((folder.path() + "/new").c_str(), 0600), 0);
    EXPECT_TRUE(files.writeText("/new", "other"));
    EXPECT_EQ(folder.content("new"), "other");
    EXPECT_EQ(modeOf(folder.path() + "/new"), 0600U);
    // A folder stands in the way of the rename: no scrap of the attempt stays.
    ASSERT_TRUE(files.createDirectory("/taken/in"));
    EXPECT_FALSE(files.writeText("/taken", "text"));
    EXPECT_EQ(files.list("/")->size(), 2U);
    EXPECT_FALSE(files.writeText("/none/file", "text"));
}

TEST_F(SystemFileManagerTest, ListsNamesOfEveryKind) {
    folder.put("a b.zip", "");
    folder.put(".hidden", "");
    folder.put("sub/inner", "");
    auto names = files.list("/").value();
    std::sort(names.begin(), names.end());
    EXPECT_EQ(names, (std::vector<std::string>{".hidden", "a b.zip", "sub"}));
    EXPECT_EQ(files.list("/none"), std::nullopt);
    EXPECT_EQ(files.list("/sub/inner"), std::nullopt);
}

}  // namespace
}  // namespace tarnwick
