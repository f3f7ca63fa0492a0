#include "zip/UnfinishedFile.h"

#include <fcntl.h>
#include <sys/stat.h>

#include <algorithm>
#include <climits>
#include <csignal>
#include <filesystem>
#include <utility>

namespace tarnwick {

namespace {

constexpr std::string_view ending = ".zip.unfinished";
constexpr int interruptedStatus = 9;  // that of the system's zip

// Where the signal handler finds it; empty if there is none.
char pathToRemove[PATH_MAX];

void endInterrupted(int) {
    ::unlink(pathToRemove);
    const char message[] = "\nzip error: Interrupted (aborting)\n";
    [[maybe_unused]] const ssize_t written = ::write(STDERR_FILENO, message, sizeof message - 1);
    ::_exit(interruptedStatus);
}

void handleInterrupts() {
    for (const int signal : {SIGINT, SIGTERM, SIGHUP, SIGQUIT, SIGXCPU}) {
        // What the caller ignores goes on being ignored.
        if (std::signal(signal, endInterrupted) == SIG_IGN)
            std::signal(signal, SIG_IGN);
    }
}

// The file must not be somebody else's.
int createAt(const std::string& path) {
    handleInterrupts();
    ::unlink(path.c_str());
    path.copy(pathToRemove, sizeof pathToRemove - 1);
    return ::open(path.c_str(), O_RDWR | O_CREAT | O_EXCL | O_NOFOLLOW | O_CLOEXEC, 0666);
}

bool keepAs(const std::string& path, const std::string& name) {
    ::unlink(name.c_str());
    // Where there are no links, nothing stands under the old name for a moment.
    return ::link(path.c_str(), name.c_str()) == 0 || ::rename(path.c_str(), name.c_str()) == 0;
}

}  // namespace

UnfinishedFile::UnfinishedFile(std::string target)
    : target_(std::move(target)), path_(target_ + ".unfinished"), file_(createAt(path_)) {}

UnfinishedFile::~UnfinishedFile() {
    const int error = errno;
    if (isOpen())
        ::unlink(path_.c_str());
    std::ranges::fill(pathToRemove, '\0');
    errno = error;
}

bool UnfinishedFile::putInPlace(const std::optional<std::string>& oldName) {
    struct stat old = {};
    const bool hasOld = ::lstat(target_.c_str(), &old) == 0 && S_ISREG(old.st_mode);
    // The group of the old file may be one that we cannot give.
    if (hasOld && ::fchown(number(), old.st_uid, old.st_gid) == 0)
        ::fchmod(number(), old.st_mode & 0777);
    return ::fsync(number()) == 0 && (!hasOld || !oldName || keepAs(target_, *oldName)) &&
           ::rename(path_.c_str(), target_.c_str()) == 0;
}

void UnfinishedFile::removeStrays(const std::string& folder) {
    std::error_code error;
    std::filesystem::directory_iterator entry(folder, error);
    for (; !error && entry != std::filesystem::directory_iterator(); entry.increment(error)) {
        if (entry->path().native().ends_with(ending))
            ::unlink(entry->path().c_str());
    }
}

}  // namespace tarnwick
