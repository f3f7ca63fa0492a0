#include <gtest/gtest.h>

#include "core/SystemCommandRunner.h"

namespace tarnwick {
namespace {

TEST(CommandOutput, KeepsTheLastLineOfWhatACommandSaidOrElsePrinted) {
    CommandOutput output(-1);
    SystemCommandRunner runner(&output);
    const std::pair<const char*, const char*> rows[] = {
        {"true", ""},
        {"printf 'adding\\nzip error: Nothing to do!\\n\\n'", "zip error: Nothing to do!"},
        {"echo first >&2; echo inflating; echo 'bad CRC' >&2", "bad CRC"},
        {"printf '1%%\\r2%%'", "2%"},
        {"printf ' inflating\\n bad CRC\\n' >&2", "bad CRC"},
        {"printf 'neither a or\\n        b, period.\\n'", "neither a or b, period."},
    };
    for (const auto& [line, last] : rows) {
        runner.run(line);
        EXPECT_EQ(runner.takeLastWords(), last) << line;
        EXPECT_EQ(runner.takeLastWords(), "") << line;
    }
    runner.run("printf '%01000d' 0");
    EXPECT_EQ(runner.takeLastWords(), std::string(500, '0'));
}

}  // namespace
}  // namespace tarnwick
