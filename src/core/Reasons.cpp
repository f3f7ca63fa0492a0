#include "core/Reasons.h"

#include <sys/stat.h>
#include <sys/statvfs.h>

#include <cerrno>
#include <cstring>
#include <filesystem>
#include <optional>

namespace tarnwick {

namespace {

namespace fs = std::filesystem;

std::optional<dev_t> deviceOf(const fs::path& path) {
    struct stat status = {};
    if (::stat(path.c_str(), &status) != 0)
        return std::nullopt;
    return status.st_dev;
}

// Where the file system that holds the path is mounted. A file that does not exist yet is where its
// folder is.
fs::path mountPointOf(fs::path path) {
    while (!deviceOf(path) && path.has_relative_path())
        path = path.parent_path();
    while (path.has_relative_path() && deviceOf(path) == deviceOf(path.parent_path()))
        path = path.parent_path();
    return path;
}

bool hasNoInodes(const fs::path& mountPoint) {
    struct statvfs figures = {};
    return ::statvfs(mountPoint.c_str(), &figures) == 0 && figures.f_files > 0 &&
           figures.f_favail == 0;
}

constexpr const char* noInodesLeftOn = "no inodes left on ";

std::string reasonText(const fs::path& path, std::string_view verb, int error) {
    const fs::path mountPoint = mountPointOf(path);
    switch (error) {
        case EROFS:
            return mountPoint.string() + " is read-only";
        case ENOSPC:
            return (hasNoInodes(mountPoint) ? noInodesLeftOn : "no space left on ") +
                   mountPoint.string();
        case ELOOP:
            return "it is a link";
        case ENOTSUP:
            return "it is no regular file";
        case EFBIG:
            return verb == "read" ? "it is larger than 64 MB" : std::strerror(error);
        case EILSEQ:
            return "it is not UTF-8 text";
        default:
            return std::strerror(error);
    }
}

}  // namespace

std::string failureText(std::string_view path, std::string_view verb, int error) {
    return std::string(path) + " cannot be " + std::string(verb) + ": " +
           reasonText(path, verb, error);
}

std::string clarified(std::string words, std::string_view path) {
    const fs::path mountPoint = mountPointOf(path);
    if (words.find(std::strerror(ENOSPC)) != std::string::npos && hasNoInodes(mountPoint))
        words += " (" + (noInodesLeftOn + mountPoint.string()) + ")";
    return words;
}

}  // namespace tarnwick
