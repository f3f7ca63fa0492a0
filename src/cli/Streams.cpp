#include "cli/Streams.h"

#include <fcntl.h>
#include <unistd.h>

namespace tarnwick {

namespace {

constexpr int firstOwnDescriptor = 10;

int setApart(int descriptor) {
    return ::fcntl(descriptor, F_DUPFD_CLOEXEC, firstOwnDescriptor);
}

void pointAtNothing(int descriptor) {
    const int nothing = ::open("/dev/null", O_RDWR | O_CLOEXEC);
    if (nothing < 0)
        return;
    ::dup2(nothing, descriptor);
    ::close(nothing);
}

}  // namespace

Streams separateStreams(CommandOutput output) {
    const Streams streams = {setApart(STDIN_FILENO), setApart(STDOUT_FILENO),
                             setApart(STDERR_FILENO)};
    pointAtNothing(STDIN_FILENO);
    if (output == CommandOutput::ShownWithProblems) {
        ::dup2(STDERR_FILENO, STDOUT_FILENO);
    } else {
        pointAtNothing(STDOUT_FILENO);
        pointAtNothing(STDERR_FILENO);
    }
    return streams;
}

}  // namespace tarnwick
