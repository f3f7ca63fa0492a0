#include "cli/RunLock.h"

#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>

#include <cerrno>

namespace tarnwick {

namespace {

RunLock::State lock(int descriptor) {
    if (descriptor < 0)
        return RunLock::State::Unavailable;
    if (::flock(descriptor, LOCK_EX | LOCK_NB) == 0)
        return RunLock::State::Held;
    return errno == EWOULDBLOCK ? RunLock::State::TakenByAnother : RunLock::State::Unavailable;
}

}  // namespace

RunLock::RunLock(const std::string& path)
    : descriptor_(::open(path.c_str(), O_RDWR | O_CREAT | O_CLOEXEC | O_NOFOLLOW, 0600)),
      state_(lock(descriptor_)) {}

RunLock::~RunLock() {
    if (descriptor_ >= 0)
        ::close(descriptor_);
}

}  // namespace tarnwick
