#include <gtest/gtest.h>
#include <unistd.h>

#include <csignal>
#include <cstdlib>

#include "core/CommandEnvironment.h"

namespace tarnwick {
namespace {

// In a process of its own, which has a descriptor closed by its caller.
TEST(CommandEnvironment, OurZipIsFoundAndNoOptionOfTheCallerReachesTheTools) {
    const auto prepare = [] {
        for (const char* name : {"ZIP", "ZIPOPT", "UNZIP", "UNZIPOPT"})
            ::setenv(name, "-m", 1);
        ::close(STDIN_FILENO);
        const bool isReady = prepareForCommands() && ::isatty(STDIN_FILENO) == 0;
        ::raise(SIGPIPE);
        const int status = std::system(
            "test \"$(pwd)\" = / && test -z \"$ZIP$ZIPOPT$UNZIP$UNZIPOPT\" && test -e /dev/fd/0 &&"
            "case $(command -v zip) in */libexec/tarnwick/bin/zip) ;; *) false; esac && command -v "
            "sh");
        std::_Exit(isReady && status == 0 ? 0 : 1);
    };
    EXPECT_EXIT(prepare(), ::testing::ExitedWithCode(0), "");
}

}  // namespace
}  // namespace tarnwick
