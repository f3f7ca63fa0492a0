#include "cli/Streams.h"

#include <fcntl.h>
#include <unistd.h>

#include <initializer_list>

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

Streams separateStreams() {
    const Streams streams = {.input = setApart(STDIN_FILENO),
                             .results = setApart(STDOUT_FILENO),
                             .problems = setApart(STDERR_FILENO)};
    // What cannot be set apart is still needed to say so.
    if (streams.problems >= 0)
        for (const int descriptor : {STDIN_FILENO, STDOUT_FILENO, STDERR_FILENO})
            pointAtNothing(descriptor);
    return streams;
}

}  // namespace tarnwick
