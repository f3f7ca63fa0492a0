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

std::optional<struct stat> statusOf(const std::string& path) {
    struct stat status = {};
    if (::stat(path.c_str(), &status) != 0)
        return std::nullopt;
    return status;
}

std::optional<std::string> readAll(int descriptor) {
    std::string text;
    char buffer[65536];
    for (;;) {
        const ssize_t count = ::read(descriptor, buffer, sizeof buffer);
        if (count == 0)
            return text;
        if (count > 0)
            text.append(buffer, static_cast<std::size_t>(count));
        else if (errno != EINTR)
            return std::nullopt;
    }
}

// A replaced file keeps its mode; everybody may read a new one.
mode_t modeFor(const std::string& target) {
    const auto status = statusOf(target);
    return status ? status->st_mode & 07777 : 0644;
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

std::optional<std::vector<std::string>> SystemFileManager::list(std::string_view path) const {
    std::error_code error;
    std::vector<std::string> names;
    fs::directory_iterator entry(placed(path), error);
    for (; !error && entry != fs::directory_iterator(); entry.increment(error))
        names.push_back(entry->path().filename().string());
    if (error)
        return std::nullopt;
    return names;
}

std::optional<std::string> SystemFileManager::readText(std::string_view path) const {
    auto text = readData(path);
    if (!text || !isValidUtf8(*text))
        return std::nullopt;
    return text;
}

std::optional<std::string> SystemFileManager::readData(std::string_view path) const {
    // Non-blocking, as a named pipe at the path must not hold up the run.
    const Descriptor file(::open(placed(path).c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK));
    if (!file.isOpen())
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
    return fs::remove_all(placed(path), error) > 0 && !error;
}

bool SystemFileManager::copy(std::string_view from, std::string_view to) {
    std::error_code error;
    const std::string target = placed(to);
    if (fs::exists(fs::symlink_status(target, error)))
        return false;
    fs::copy(placed(from), target, fs::copy_options::recursive | fs::copy_options::copy_symlinks,
             error);
    return !error;
}

bool SystemFileManager::createDirectory(std::string_view path) {
    std::error_code error;
    fs::create_directories(placed(path), error);
    return !error;
}

bool SystemFileManager::createFile(std::string_view path) {
    const int flags = O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC | O_NONBLOCK;
    return Descriptor(::open(placed(path).c_str(), flags, 0666)).isOpen();
}

bool SystemFileManager::writeText(std::string_view path, std::string_view text) {
    const std::string target = placed(path);
    std::string temporary = target + ".XXXXXX";
    const Descriptor file(::mkostemp(temporary.data(), O_CLOEXEC));
    if (!file.isOpen())
        return false;
    const bool done = writeAll(file.number(), text) && ::fsync(file.number()) == 0 &&
                      ::fchmod(file.number(), modeFor(target)) == 0 &&
                      ::rename(temporary.c_str(), target.c_str()) == 0;
    if (!done)
        ::unlink(temporary.c_str());
    return done;
}

}  // namespace tarnwick
