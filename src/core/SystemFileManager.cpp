#include "core/SystemFileManager.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <sys/statvfs.h>
#include <unistd.h>

#include <cerrno>
#include <filesystem>
#include <utility>

#include "core/Descriptor.h"
#include "core/TextLines.h"
#include "core/WriteAll.h"

namespace tarnwick {

namespace fs = std::filesystem;

static_assert(sizeof(off_t) == 8, "Large files would not be seen: _FILE_OFFSET_BITS must be 64.");

namespace {

// What a file may carry: nothing that lends the rights of its owner.
constexpr mode_t permissions = 0777;

std::optional<struct stat> statusOf(const std::string& path) {
    struct stat status = {};
    if (::stat(path.c_str(), &status) != 0)
        return std::nullopt;
    return status;
}

// Returns false, with errno set to the reason.
bool failed(int reason) {
    errno = reason;
    return false;
}

// Whether this is a file of a size that can be read into memory: not a device that never ends.
bool canBeRead(int descriptor) {
    struct stat status = {};
    if (::fstat(descriptor, &status) != 0)
        return false;
    if (!S_ISREG(status.st_mode))
        return failed(ENOTSUP);
    return status.st_size <= largestText || failed(EFBIG);
}

std::optional<std::string> readAll(int descriptor) {
    std::string text;
    char buffer[65536];
    while (static_cast<std::int64_t>(text.size()) <= largestText) {
        const ssize_t count = ::read(descriptor, buffer, sizeof buffer);
        if (count == 0)
            return text;
        if (count > 0)
            text.append(buffer, static_cast<std::size_t>(count));
        else if (errno != EINTR)
            return std::nullopt;
    }
    errno = EFBIG;
    return std::nullopt;
}

// A replaced file keeps its mode; everybody may read a new one.
mode_t modeFor(const std::string& target) {
    struct stat status = {};
    const bool isThere = ::lstat(target.c_str(), &status) == 0 && S_ISREG(status.st_mode);
    return isThere ? status.st_mode & permissions : 0644;
}

// The file appears under its name when it is complete. After a failure, errno says why and nothing
// has changed.
bool writeWhole(const std::string& target, std::string_view text, mode_t mode) {
    std::string temporary = target + ".XXXXXX";
    const Descriptor file(::mkostemp(temporary.data(), O_CLOEXEC));
    if (!file.isOpen())
        return false;
    const bool done = writeAll(file.number(), text) && ::fsync(file.number()) == 0 &&
                      ::fchmod(file.number(), mode) == 0 &&
                      ::rename(temporary.c_str(), target.c_str()) == 0;
    if (!done) {
        const int reason = errno;
        ::unlink(temporary.c_str());
        errno = reason;
    }
    return done;
}

std::int64_t bytesOf(const std::string& path, fsblkcnt_t (*blocks)(const struct statvfs&)) {
    struct statvfs figures = {};
    if (::statvfs(path.c_str(), &figures) != 0)
        return 0;
    return static_cast<std::int64_t>(blocks(figures) * figures.f_frsize);
}

}  // namespace

SystemFileManager::SystemFileManager(std::string root) : root_(std::move(root)) {}

std::string SystemFileManager::placed(std::string_view path) const {
    return root_ + std::string(path);
}

bool SystemFileManager::exists(std::string_view path) const {
    return statusOf(placed(path)).has_value();
}

bool SystemFileManager::isReadable(std::string_view path) const {
    const auto status = statusOf(placed(path));
    return status && S_ISREG(status->st_mode) && ::access(placed(path).c_str(), R_OK) == 0;
}

std::optional<std::vector<std::string>> SystemFileManager::list(std::string_view path) const {
    std::error_code error;
    std::vector<std::string> names;
    fs::directory_iterator entry(placed(path), error);
    for (; !error && entry != fs::directory_iterator(); entry.increment(error))
        names.push_back(entry->path().filename().string());
    if (error) {
        errno = error.value();
        return std::nullopt;
    }
    return names;
}

std::optional<std::string> SystemFileManager::readText(std::string_view path) const {
    auto text = readData(path);
    if (text && !isValidUtf8(*text)) {
        errno = EILSEQ;
        text.reset();
    }
    return text;
}

std::optional<std::string> SystemFileManager::readData(std::string_view path) const {
    // Non-blocking, as a named pipe at the path must not hold up the run. A link in its owner's
    // folder could lead to what the owner may not read.
    const Descriptor file(
        ::open(placed(path).c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK | O_NOFOLLOW));
    if (!file.isOpen() || !canBeRead(file.number()))
        return std::nullopt;
    return readAll(file.number());
}

std::uint64_t SystemFileManager::fileSize(std::string_view path) const {
    const auto status = statusOf(placed(path));
    return status ? static_cast<std::uint64_t>(status->st_size) : 0;
}

std::optional<std::time_t> SystemFileManager::modificationTime(std::string_view path) const {
    const auto status = statusOf(placed(path));
    return status ? std::optional(status->st_mtime) : std::nullopt;
}

std::int64_t SystemFileManager::fileSystemSize(std::string_view path) const {
    return bytesOf(placed(path), [](const struct statvfs& figures) { return figures.f_blocks; });
}

std::int64_t SystemFileManager::fileSystemFreeSize(std::string_view path) const {
    return bytesOf(placed(path), [](const struct statvfs& figures) { return figures.f_bavail; });
}

bool SystemFileManager::remove(std::string_view path) {
    std::error_code error;
    if (fs::remove_all(placed(path), error) > 0 && !error)
        return true;
    return failed(error ? error.value() : ENOENT);
}

bool SystemFileManager::copy(std::string_view from, std::string_view to) {
    struct stat source = {};
    struct stat existing = {};
    if (::lstat(placed(from).c_str(), &source) != 0)
        return false;
    if (::lstat(placed(to).c_str(), &existing) == 0)
        return failed(EEXIST);
    const auto content = readData(from);
    return content && writeWhole(placed(to), *content, source.st_mode & permissions);
}

bool SystemFileManager::createDirectory(std::string_view path) {
    std::error_code error;
    fs::create_directories(placed(path), error);
    return !error || failed(error.value());
}

bool SystemFileManager::createFile(std::string_view path) {
    const int flags = O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC | O_NONBLOCK | O_NOFOLLOW;
    return Descriptor(::open(placed(path).c_str(), flags, 0666)).isOpen();
}

bool SystemFileManager::writeText(std::string_view path, std::string_view text) {
    const std::string target = placed(path);
    return writeWhole(target, text, modeFor(target));
}

}  // namespace tarnwick
