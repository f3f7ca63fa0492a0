#include <unistd.h>

#include "cli/CommandLine.h"
#include "core/CommandEnvironment.h"
#include "core/SystemCommandRunner.h"
#include "core/SystemFileManager.h"
#include "mail/Transport.h"

using namespace tarnwick;

int main(int count, char** values) {
    if (!prepareForCommands())
        return WrongUsage;
    const Arguments arguments = parseArguments({values + 1, values + count});
    SystemCommandRunner runner;
    SystemFileManager files;
    const World world = {
        .streams = separateStreams(arguments.verbose ? CommandOutput::ShownWithProblems
                                                     : CommandOutput::Discarded),
        .runner = runner,
        .files = files,
        .isRoot = ::geteuid() == 0,
        .lockPath = "/var/lib/tarnwick.lock",
        .mailerProgram = systemMailer,
        .supervise = supervise,
    };
    return runCommandLine(arguments, world);
}
