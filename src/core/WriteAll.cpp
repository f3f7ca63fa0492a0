#include "core/WriteAll.h"

#include <poll.h>
#include <unistd.h>

#include <cerrno>

namespace tarnwick {

namespace {

// Another process may have made the shared stream non-blocking.
bool canGoOn(int descriptor) {
    if (errno == EAGAIN) {
        struct pollfd reader = {.fd = descriptor, .events = POLLOUT, .revents = 0};
        ::poll(&reader, 1, -1);
        return true;
    }
    return errno == EINTR;
}

}  // namespace

bool writeAll(int descriptor, std::string_view text) {
    while (!text.empty()) {
        const ssize_t count = ::write(descriptor, text.data(), text.size());
        if (count >= 0)
            text.remove_prefix(static_cast<std::size_t>(count));
        else if (!canGoOn(descriptor))
            return false;
    }
    return true;
}

}  // namespace tarnwick
