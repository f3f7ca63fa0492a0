#include "cli/Output.h"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <unistd.h>

#include "cli/Json.h"
#include "cli/ProgressLine.h"

namespace tarnwick {
namespace {

TEST(Json, WritesOneValidLineWhateverTheTextHolds) {
    EXPECT_EQ(jsonObject({}), "{}");
    EXPECT_EQ(jsonObject({{"a", "b"}, {"n", std::int64_t{-3}}}), R"({"a":"b","n":-3})");
    EXPECT_EQ(jsonObject({{"text", "\"\\\n\t\x01\x7F"}}),
              "{\"text\":\"\\\"\\\\\\n\\t\\u0001\x7F\"}");
    EXPECT_EQ(jsonObject({{"name", "\u00E9"}}), "{\"name\":\"\u00E9\"}");
    EXPECT_EQ(jsonObject({{"name", "a\xFF-"}}), "{\"name\":\"a\uFFFD-\"}");
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
        line.without([] {});
    }
    ::close(terminal);
    std::string text;
    char part[100];
    for (ssize_t count = 0; (count = ::read(master, part, sizeof part)) > 0;)
        text.append(part, static_cast<std::size_t>(count));
    ::close(master);
    const std::string erase = "\r\033[K";
    EXPECT_EQ(text, erase + "Backup in progress... 0:00" + erase +
                        "Backup in progress... notes (7/11) 0:00" + erase + erase);

    const int file = ::open("/dev/null", O_WRONLY | O_CLOEXEC);
    ProgressLine quiet(file);
    quiet.start("nothing");
    ::close(file);
}

}  // namespace
}  // namespace tarnwick
