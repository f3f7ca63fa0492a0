#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

#include <filesystem>

#include "mail/Drafts.h"
#include "mail/Transport.h"
#include "support/TemporaryFolder.h"

namespace tarnwick::testing {
namespace {

namespace fs = std::filesystem;

// A folder with a mailer that does what the script says.
struct StandIn {
    explicit StandIn(const std::string& script) {
        folder.put("mailer", "#!/bin/sh\ncd '" + folder.path() + "'\n" + script + "\n");
        fs::permissions(program, fs::perms::owner_all);
    }
    TemporaryFolder folder;
    std::string program = folder.path() + "/mailer";
};

const std::string bigMessage(1'000'000, 'm');

TEST(Transport, TheMailerGetsTheMessageAndNothingOfTheEnvironment) {
    const StandIn mailer("echo \"$@\" $SECRET >words; cat >message");
    ::setenv("SECRET", "seen", 1);
    EXPECT_EQ(handToMailer(bigMessage, mailer.program), std::nullopt);
    ::unsetenv("SECRET");
    EXPECT_EQ(mailer.folder.content("message"), bigMessage);
    EXPECT_EQ(mailer.folder.content("words"), "-t -oi\n");
}

TEST(Transport, AFailureGivesTheReason) {
    const std::pair<const char*, const char*> rows[] = {
        {"exit 75", " ended with status 75."},
        {"kill -9 $$", " was ended by signal 9."},
        // It reads nothing and prints more than a pipe holds.
        {"exec <&-; echo 'no route' >&2; yes | head -c 200000; exit 2",
         " ended with status 2: no route"}};
    for (const auto& [script, reason] : rows) {
        const StandIn mailer(script);
        EXPECT_EQ(handToMailer(bigMessage, mailer.program),
                  "The mailer " + mailer.program + reason);
    }
    const StandIn stuck("exec sleep 60");
    EXPECT_EQ(handToMailer("m", stuck.program, std::chrono::milliseconds(0)),
              "The mailer " + stuck.program + " took too long.");
    EXPECT_EQ(handToMailer("m", "/nowhere/sendmail"), "There is no mailer at /nowhere/sendmail.");
    fs::permissions(stuck.program, fs::perms::owner_read);
    EXPECT_EQ(handToMailer("m", stuck.program),
              "The mailer " + stuck.program + " cannot be started: Permission denied.");
}

TEST(Drafts, EachIsAWholeFileOfTheHomesOwner) {
    const TemporaryFolder folder;
    const DraftPlace place = {.home = folder.path() + "/home", .folder = "Mail/Drafts"};
    EXPECT_EQ(keepDraft("lost", 0, place), "The draft cannot be kept in " + place.home +
                                               "/Mail/Drafts: No such file or directory.");
    fs::create_directory(place.home);
    constexpr uid_t owner = 1234;
    const bool isRoot = ::chown(place.home.c_str(), owner, owner) == 0;
    fs::permissions(folder.path(), fs::perms::others_exec, fs::perm_options::add);
    for (const char* text : {"first", "second"})
        EXPECT_EQ(keepDraft(text, 1'700'000'000, place), std::nullopt);
    std::string texts;
    for (const auto& entry : fs::directory_iterator(place.home + "/Mail/Drafts/cur")) {
        const std::string name = entry.path().filename().string();
        EXPECT_TRUE(name.starts_with("1700000000.") && name.ends_with(":2,D")) << name;
        texts += folder.content("home/Mail/Drafts/cur/" + name);
        struct stat status = {};
        EXPECT_EQ(::stat(entry.path().c_str(), &status), 0);
        EXPECT_EQ(status.st_mode & 07777U, 0600U);
        EXPECT_EQ(status.st_uid, isRoot ? owner : ::getuid());
    }
    EXPECT_EQ(texts.size(), std::string("firstsecond").size());
    EXPECT_TRUE(fs::is_empty(place.home + "/Mail/Drafts/tmp"));
    EXPECT_TRUE(fs::is_directory(place.home + "/Mail/Drafts/new"));
}

TEST(Drafts, NoLinkInTheHomeLeadsWhereItsOwnerMayNotWrite) {
    const TemporaryFolder folder;
    const DraftPlace place = {.home = folder.path() + "/home", .folder = "Drafts"};
    fs::create_directory(place.home);
    fs::permissions(folder.path(), fs::perms::others_exec, fs::perm_options::add);
    if (::chown(place.home.c_str(), 1234, 1234) != 0)
        GTEST_SKIP() << "only root writes for others";
    for (const char* part : {"tmp", "new", "cur"})
        fs::create_directories(folder.path() + "/roots/" + part);
    fs::create_symlink("../roots", place.home + "/Drafts");
    EXPECT_EQ(keepDraft("text", 0, place),
              "The draft cannot be kept in " + place.home + "/Drafts: Permission denied.");
    EXPECT_TRUE(fs::is_empty(folder.path() + "/roots/cur"));
    folder.put("after", "");
    EXPECT_EQ(folder.content("after"), "") << "the rights are root's again";
}

}  // namespace
}  // namespace tarnwick::testing
