#include "cli/Streams.h"

#include <fcntl.h>
#include <unistd.h>

#include "core/Descriptor.h"

namespace tarnwick {

namespace {

constexpr int firstOwnDescriptor = 10;

int setApart(int descriptor) {
    return ::fcntl(descriptor, F_DUPFD_CLOEXEC, firstOwnDescriptor);
}

void pointAtNothing(int descriptor) {
    const Descriptor nothing(::open("/dev/null", O_RDWR | O_CLOEXEC));
    if (nothing.isOpen())
        ::dup2(nothing.number(), descriptor);
}

}  // namespace

Streams separateStreams(CommandOutput output) {
    const Streams streams = {.input = setApart(STDIN_FILENO),
                             .results = setApart(STDOUT_FILENO),
                             .problems = setApart(STDERR_FILENO)};
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
