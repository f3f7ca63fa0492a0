#include <fcntl.h>
#include <gtest/gtest.h>
#include <unistd.h>

#include <algorithm>

#include "cli/ProgressLine.h"
#include "support/TemporaryFolder.h"
#include "support/Terminal.h"

namespace tarnwick {
namespace {

// A pseudo terminal stands for the person's: the line is drawn, drawn again each second, cut to its
// width, and taken away.
TEST(ProgressLine, DrawsOnATerminalOnly) {
    ::setenv("TERM", "xterm", 1);
    testing::Terminal terminal;
    std::string text;
    const auto readMore = [&] {
        char part[100];
        const ssize_t count = ::read(terminal.person, part, sizeof part);
        text.append(part, static_cast<std::size_t>(std::max<ssize_t>(count, 0)));
        return count > 0;
    };
    {
        ProgressLine line(terminal.program);
        line.start("Backup in progress...");
        line.setItem("notes", 7, 11);
        while (!text.ends_with("0:01"))
            ASSERT_TRUE(readMore());
        line.without([] {});
    }
    terminal.hangUp();
    while (readMore())
        continue;
    const std::string erase = "\r\033[K";
    EXPECT_EQ(text, erase + "Backup in progress... 0:00" + erase +
                        "Backup in progress... notes (7/11) 0:00" + erase +
                        "Backup in progress... notes (7/11) 0:01" + erase + erase);

    const testing::TemporaryFolder folder;
    const int file =
        ::open((folder.path() + "/file").c_str(), O_WRONLY | O_CREAT | O_CLOEXEC, 0600);
    ProgressLine(file).start("nothing");
    ::close(file);
    EXPECT_EQ(folder.content("file"), "");
}

}  // namespace
}  // namespace tarnwick
