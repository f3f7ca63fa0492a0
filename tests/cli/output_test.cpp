#include "cli/Output.h"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <unistd.h>

#include <csignal>

#include "cli/Json.h"
#include "cli/ProgressLine.h"
#include "cli/RunLock.h"
#include "support/TemporaryFolder.h"

namespace tarnwick {
namespace {

TEST(Json, WritesOneValidLineWhateverTheTextHolds) {
    EXPECT_EQ(jsonObject({}), "}");
    EXPECT_EQ(jsonObject({{"a", "b"}, {"n", std::int64_t{-3}}}), R"({"a":"b","n":-3})");
    EXPECT_EQ(jsonObject({{"text", "\"\\\n\t\x01\x7F\u00E9"}}),
              R"({"text":"\"\\\n\u0009\u0001\u007f)"
              "\u00E9\"}");
    EXPECT_EQ(jsonObject({{"name",
                           "a\xFF"
                           "b"}}),
              "{\"name\":\"a\uFFFDb\"}");
}

TEST(Output, GoesOnWhenNobodyReads) {
    std::signal(SIGPIPE, [](int) {});
    int ends[2];
    ASSERT_EQ(::pipe(ends), 0);
    ::close(ends[0]);
    Output output({-1, ends[1], -1}, Format::Text, Colour::Plain);
    output.result("nobody", {});
    output.problem("closed", {});
    ::close(ends[1]);
    std::signal(SIGPIPE, SIG_DFL);
}

TEST(RunLock, IsHeldByOneAndGoesWithItsHolder) {
    const testing::TemporaryFolder folder;
    const std::string path = folder.path() + "/lock";
    {
        const RunLock first(path);
        EXPECT_EQ(first.state(), RunLock::State::Held);
        EXPECT_EQ(RunLock(path).state(), RunLock::State::TakenByAnother);
    }
    EXPECT_EQ(RunLock(path).state(), RunLock::State::Held);
    EXPECT_EQ(RunLock(folder.path() + "/none/lock").state(), RunLock::State::Unavailable);
    ASSERT_EQ(::symlink("elsewhere", (folder.path() + "/link").c_str()), 0);
    EXPECT_EQ(RunLock(folder.path() + "/link").state(), RunLock::State::Unavailable);
}

// A pseudo terminal stands for the person's: the line is drawn, cut to its width, and taken away.
TEST(ProgressLine, DrawsOnATerminalOnly) {
    ::setenv("TERM", "xterm", 1);
    const int master = ::posix_openpt(O_RDWR | O_NOCTTY | O_CLOEXEC);
    ASSERT_EQ(::grantpt(master), 0);
    ASSERT_EQ(::unlockpt(master), 0);
    const int terminal = ::open(::ptsname(master), O_RDWR | O_NOCTTY | O_CLOEXEC);
    {
        ProgressLine line(terminal);
        line.start("Backup in progress...");
        line.setItem("notes", 7, 11);
        line.clear();
    }
    char text[1000];
    const ssize_t count = ::read(master, text, sizeof text);
    ::close(terminal);
    ::close(master);
    const std::string erase = "\r\033[K";
    EXPECT_EQ(std::string(text, static_cast<std::size_t>(count)),
              erase + "Backup in progress... 0:00" + erase +
                  "Backup in progress... notes (7/11) 0:00" + erase + erase);

    const int file = ::open("/dev/null", O_WRONLY | O_CLOEXEC);
    ProgressLine quiet(file);
    quiet.start("nothing");
    ::close(file);
}

}  // namespace
}  // namespace tarnwick
