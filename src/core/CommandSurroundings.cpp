#include "core/CommandSurroundings.h"

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
    // A handler, as commands would inherit an ignored signal but start with the default instead of
    // a handler.
    std::signal(SIGPIPE, [](int) {});
    // The caller's wishes for other uses of these tools would make archives that no restore can
    // use.
    for (const char* wishes : {"ZIP", "ZIPOPT", "UNZIP", "UNZIPOPT"})
        ::unsetenv(wishes);
    // One copy line has a target that counts on this.
    return ::chdir("/") == 0;
}

}  // namespace tarnwick
