#include <unistd.h>

#include <csignal>
#include <cstdlib>

#include "cli/CommandLine.h"
#include "core/SystemCommandRunner.h"
#include "core/SystemFileManager.h"

using namespace tarnwick;

int main(int count, char** values) {
    fillStandardDescriptors();
    const Arguments arguments = parseArguments({values + 1, values + count});
    // A reader that went away must not end a save half-way. A handler, as commands would inherit an
    // ignored signal but start with the default instead of a handler.
    std::signal(SIGPIPE, [](int) {});
    // The caller's wishes for other uses of these tools would make archives that no restore can
    // use.
    for (const char* wishes : {"ZIP", "ZIPOPT", "UNZIP", "UNZIPOPT"})
        ::unsetenv(wishes);
    // One copy line has a target that counts on this.
    if (::chdir("/") != 0)
        return WrongUsage;
    SystemCommandRunner runner;
    SystemFileManager files;
    const World world = {
        .streams = separateStreams(arguments.verbose ? CommandOutput::ShownWithProblems
                                                     : CommandOutput::Discarded),
        .runner = runner,
        .files = files,
        .isRoot = ::geteuid() == 0,
        .lockPath = "/var/lib/tarnwick.lock",
        .supervise = supervise,
    };
    return runCommandLine(arguments, world);
}
