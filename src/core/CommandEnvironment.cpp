#include "core/CommandEnvironment.h"

#include <fcntl.h>
#include <unistd.h>

#include <csignal>
#include <cstdlib>
#include <initializer_list>

namespace tarnwick {

void fillStandardDescriptors() {
    // A new descriptor takes the lowest free number, so this fills the gaps.
    int descriptor = 0;
    while (descriptor >= 0 && descriptor <= STDERR_FILENO)
        descriptor = ::open("/dev/null", O_RDWR);
    if (descriptor > STDERR_FILENO)
        ::close(descriptor);
}

bool prepareForCommands() {
    fillStandardDescriptors();
    // A handler rather than SIG_IGN, which commands would inherit.
    std::signal(SIGPIPE, [](int) {});
    // Options that the caller set for these tools could make archives that no restore can use.
    for (const char* options : {"ZIP", "ZIPOPT", "UNZIP", "UNZIPOPT"})
        ::unsetenv(options);
    // One copy line has a relative target.
    return ::chdir("/") == 0;
}

}  // namespace tarnwick
