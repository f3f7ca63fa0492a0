#include <unistd.h>

#include <cstdio>
#include <filesystem>

#include "cli/CommandLine.h"
#include "cli/WithArchives.h"
#include "core/CommandEnvironment.h"
#include "core/SystemCommandRunner.h"
#include "core/SystemFileManager.h"
#include "mail/Transport.h"

using namespace tarnwick;

int main(int count, char** values) {
    const Arguments arguments = parseArguments({values + 1, values + count});
    becomeProgramWithArchives(arguments, values);
    std::error_code noFolder;
    const std::string folder = std::filesystem::current_path(noFolder).string();
    if (!prepareForCommands())
        return WrongUsage;
    const Streams streams = separateStreams();
    if (streams.input < 0 || streams.results < 0 || streams.problems < 0) {
        std::fputs("tarnwick: too few files may be open\n", stderr);
        return NotAllDone;
    }
    CommandOutput commandOutput(arguments.verbose ? streams.problems : -1);
    SystemCommandRunner runner(&commandOutput);
    SystemFileManager files;
    Guard guard(ItemCatalogue(), runner, files);
    const World world = {
        .streams = streams,
        .runner = runner,
        .files = files,
        .guard = guard,
        .isRoot = ::geteuid() == 0,
        .lockPath = runLockPath,
        .logPath = runLogPath,
        .mailerProgram = systemMailer,
        .supervise = supervise,
        .workingFolder = folder,
    };
    return runCommandLine(arguments, world);
}
