#include "copy/IncomingFolder.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <sys/statvfs.h>

#include <array>
#include <cerrno>
#include <cstdio>
#include <cstring>
#include <filesystem>
#include <utility>

#include "core/Reasons.h"
#include "core/SafeguardPaths.h"
#include "core/WriteAll.h"

namespace tarnwick {

namespace {

namespace fs = std::filesystem;

// As a save makes them: less what the umask takes away.
constexpr mode_t folderMode = 0777;
constexpr mode_t fileMode = 0666;

std::string parentOf(std::string_view path) {
    return std::string(path.substr(0, path.rfind('/')));
}

bool exists(const std::string& path) {
    struct stat status = {};
    return ::lstat(path.c_str(), &status) == 0;
}

bool isFolder(const std::string& path) {
    struct stat status = {};
    return ::lstat(path.c_str(), &status) == 0 && S_ISDIR(status.st_mode);
}

int openFolder(int parent, const std::string& name) {
    return ::openat(parent, name.c_str(), O_RDONLY | O_DIRECTORY | O_NOFOLLOW | O_CLOEXEC);
}

bool sync(const std::string& folder) {
    const Descriptor open(openFolder(AT_FDCWD, folder));
    return open.isOpen() && ::fsync(open.number()) == 0;
}

}  // namespace

IncomingFolder::IncomingFolder(std::string root) : root_(std::move(root)) {}

IncomingFolder::~IncomingFolder() {
    std::error_code ignored;
    fs::remove_all(placed(incomingFolder), ignored);
}

CopySink::Fault IncomingFolder::failure(const std::string& what) const {
    // Not what it means of files that are read.
    if (errno == EFBIG)
        return what + " cannot be written: " + std::strerror(EFBIG);
    return failureText(what, "written", errno);
}

CopySink::Fault IncomingFolder::begin(const Manifest& manifest) {
    const std::string safeguard = placed(paths::safeguardRoot);
    if (exists(safeguard) && !isFolder(safeguard))
        return std::string(paths::safeguardRoot) + " is no folder, and stays as it is";
    std::error_code error;
    fs::create_directories(parentOf(safeguard), error);
    fs::remove_all(placed(incomingFolder), error);
    struct statvfs space = {};
    if (::statvfs(placed(parentOf(incomingFolder)).c_str(), &space) == 0 &&
        manifest.size() / space.f_frsize >= space.f_bavail) {
        errno = ENOSPC;
        return failure(incomingFolder);
    }
    return makeFolders();
}

// Everything below is made through open folders: nobody can put a link in between.
CopySink::Fault IncomingFolder::makeFolders() {
    const std::string incoming = placed(incomingFolder);
    if (::mkdir(incoming.c_str(), folderMode) != 0)
        return failure(incomingFolder);
    folder_.emplace(openFolder(AT_FDCWD, incoming));
    for (const std::string_view path :
         {paths::sourcesFolder, paths::packagesFolder, paths::archiveFolder})
        if (::mkdirat(folder_->number(), paths::nameOf(path).c_str(), folderMode) != 0)
            return failure(incomingFolder);
    return {};
}

CopySink::Fault IncomingFolder::open(const CopiedFile& file) {
    current_ = file;
    const Descriptor parent(openFolder(folder_->number(), parentOf(file.name)));
    file_.emplace(::openat(parent.number(), paths::nameOf(file.name).c_str(),
                           O_WRONLY | O_CREAT | O_EXCL | O_NOFOLLOW | O_CLOEXEC, fileMode));
    return file_->isOpen() ? Fault() : failure(file.name);
}

CopySink::Fault IncomingFolder::write(std::string_view data) {
    return writeAll(file_->number(), data) ? Fault() : failure(current_.name);
}

CopySink::Fault IncomingFolder::close() {
    const std::array<struct timespec, 2> times = {
        {{.tv_sec = 0, .tv_nsec = UTIME_OMIT}, {.tv_sec = current_.modified, .tv_nsec = 0}}};
    if (::futimens(file_->number(), times.data()) != 0 || ::fsync(file_->number()) != 0)
        return failure(current_.name);
    file_.reset();
    return {};
}

CopySink::Fault IncomingFolder::makeRoomForPrevious() const {
    std::error_code error;
    fs::remove_all(placed(previousFolder), error);
    return error ? Fault(failureText(previousFolder, "removed", error.value())) : Fault();
}

// The new folder waits under the name that the old one is to have, so that one exchange does it.
bool IncomingFolder::swap() const {
    const std::string safeguard = placed(paths::safeguardRoot);
    const std::string previous = placed(previousFolder);
    const std::string incoming = placed(incomingFolder);
    if (!exists(safeguard))
        return ::rename(incoming.c_str(), safeguard.c_str()) == 0;
    if (::rename(incoming.c_str(), previous.c_str()) != 0)
        return false;
    if (::renameat2(AT_FDCWD, previous.c_str(), AT_FDCWD, safeguard.c_str(), RENAME_EXCHANGE) == 0)
        return true;
    const int error = errno;
    ::rename(previous.c_str(), incoming.c_str());
    errno = error;
    return false;
}

CopySink::Fault IncomingFolder::putInPlace() {
    for (const std::string_view path :
         {paths::sourcesFolder, paths::packagesFolder, paths::archiveFolder})
        if (!sync(placed(incomingFolder) + "/" + paths::nameOf(path)))
            return failure(incomingFolder);
    if (!sync(placed(incomingFolder)))
        return failure(incomingFolder);
    if (auto fault = makeRoomForPrevious())
        return fault;
    if (!swap())
        return failure(std::string(paths::safeguardRoot));
    sync(placed(parentOf(paths::safeguardRoot)));
    sync(placed(parentOf(previousFolder)));
    return {};
}

}  // namespace tarnwick
