#include "cli/RunLock.h"

#include <fcntl.h>
#include <sys/file.h>

#include <cerrno>

namespace tarnwick {

namespace {

RunLock::State lock(const Descriptor& file) {
    if (file.isOpen() && ::flock(file.number(), LOCK_EX | LOCK_NB) == 0)
        return RunLock::State::Held;
    return errno == EWOULDBLOCK ? RunLock::State::TakenByAnother : RunLock::State::Unavailable;
}

}  // namespace

RunLock::RunLock(const std::string& path)
    : descriptor_(::open(path.c_str(), O_RDWR | O_CREAT | O_CLOEXEC | O_NOFOLLOW, 0600)),
      state_(lock(descriptor_)) {}

}  // namespace tarnwick
