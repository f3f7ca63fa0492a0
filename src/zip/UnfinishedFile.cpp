#include "zip/UnfinishedFile.h"

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <climits>
#include <csignal>
#include <cstdio>
#include <filesystem>
#include <string_view>
#include <utility>

#include "core/Descriptor.h"
#include "zip/HeldSignals.h"

namespace tarnwick {

namespace {

constexpr char ending[] = ".unfinished";
constexpr std::string_view endingOfArchives = ".zip.unfinished";
constexpr int interruptedStatus = 9;  // that of the system's zip

// Where the signal handler finds it; empty if there is none.
char pathToRemove[PATH_MAX];

void endInterrupted(int) {
    ::unlink(pathToRemove);
    ::_exit(interruptedStatus);
}

// What the caller ignores goes on being ignored.
void handleInterrupts() {
    for (const int signal : {SIGINT, SIGTERM, SIGHUP, SIGQUIT, SIGXCPU}) {
        struct sigaction action = {};
        if (::sigaction(signal, nullptr, &action) != 0 || action.sa_handler == SIG_IGN)
            continue;
        action.sa_handler = endInterrupted;
        ::sigaction(signal, &action, nullptr);
    }
}

int openFile(const std::string& path, int flags) {
    return ::open(path.c_str(), flags | O_RDWR | O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC,
                  S_IRUSR | S_IWUSR);
}

// Nobody else's in any way.
bool isOwn(const struct stat& status) {
    return S_ISREG(status.st_mode) && status.st_uid == ::geteuid() && status.st_nlink == 1;
}

// Whether the path leads to the open file, rather than to that of another process.
bool isOwn(int file, const std::string& path) {
    struct stat opened = {}, found = {};
    return ::fstat(file, &opened) == 0 && ::lstat(path.c_str(), &found) == 0 &&
           opened.st_dev == found.st_dev && opened.st_ino == found.st_ino && isOwn(opened);
}

// What is not a file like ours is not waited for. Returns false, with errno set, if it stays.
bool removeForeign(const std::string& path) {
    struct stat found = {};
    return ::lstat(path.c_str(), &found) != 0 || isOwn(found) || ::unlink(path.c_str()) == 0 ||
           errno == ENOENT;
}

bool lock(int file, int mode) {
    while (::flock(file, mode) != 0) {
        if (errno != EINTR)
            return false;
    }
    return true;
}

// The mode of a new archive is that of the old one, unless that one is somebody else's.
mode_t modeFor(const std::string& target) {
    struct stat old = {};
    if (::lstat(target.c_str(), &old) == 0 && S_ISREG(old.st_mode) && old.st_uid == ::geteuid())
        return old.st_mode & 0777;
    const mode_t mask = ::umask(0);
    ::umask(mask);
    return 0666 & ~mask;
}

// The file has both names then, where the file system knows links.
bool addName(const std::string& path, const std::string& name) {
    const std::string unfinished = name + ending;
    ::unlink(unfinished.c_str());
    return ::link(path.c_str(), unfinished.c_str()) == 0 &&
           ::rename(unfinished.c_str(), name.c_str()) == 0;
}

}  // namespace

UnfinishedFile::UnfinishedFile(std::string target)
    : target_(std::move(target)), path_(target_ + ending) {
    handleInterrupts();
    while (error_ == 0 && !open()) {
    }
}

// Returns false, without an error, if it has to be tried again, as the one that was waited for is
// in place by now.
bool UnfinishedFile::open() {
    if (removeForeign(path_))
        number_ = openFile(path_, O_CREAT);
    if (number_ < 0 || !lock(number_, LOCK_EX)) {
        error_ = errno;
        return false;
    }
    const HeldSignals held;
    if (isOwn(number_, path_)) {
        path_.copy(pathToRemove, sizeof pathToRemove - 1);
        return true;
    }
    ::close(std::exchange(number_, -1));
    return false;
}

UnfinishedFile::~UnfinishedFile() {
    if (number_ < 0)
        return;
    const HeldSignals held;
    if (isOwn(number_, path_))
        ::unlink(path_.c_str());
    std::ranges::fill(pathToRemove, '\0');
    ::close(number_);
}

bool UnfinishedFile::putInPlace(const std::optional<std::string>& oldName) {
    if (::fchmod(number_, modeFor(target_)) != 0 || ::fsync(number_) != 0)
        return false;
    const HeldSignals held;
    return rename(oldName);
}

bool UnfinishedFile::rename(const std::optional<std::string>& oldName) const {
    if (!oldName || addName(target_, *oldName))
        return ::rename(path_.c_str(), target_.c_str()) == 0;
    // Without links, nothing stands under the name for a moment.
    if (::rename(target_.c_str(), oldName->c_str()) != 0 && errno != ENOENT)
        return false;
    if (::rename(path_.c_str(), target_.c_str()) == 0)
        return true;
    const int error = errno;
    ::rename(oldName->c_str(), target_.c_str());
    errno = error;
    return false;
}

void UnfinishedFile::removeStrays(const std::string& folder) {
    std::error_code error;
    std::filesystem::directory_iterator entry(folder, error);
    for (; !error && entry != std::filesystem::directory_iterator(); entry.increment(error)) {
        const std::string path = entry->path().string();
        if (!path.ends_with(endingOfArchives))
            continue;
        const Descriptor stray(openFile(path, 0));
        if (stray.isOpen() && lock(stray.number(), LOCK_EX | LOCK_NB) &&
            isOwn(stray.number(), path))
            ::unlink(path.c_str());
    }
}

}  // namespace tarnwick
