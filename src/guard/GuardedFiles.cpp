#include "guard/GuardedFiles.h"

#include <sys/stat.h>

#include <cerrno>
#include <utility>

#include "core/Reasons.h"
#include "core/SafeguardPaths.h"
#include "guard/ForeignLinks.h"

namespace tarnwick {

namespace {

bool isSavedList(std::string_view path) {
    return path == paths::savedSourcesList || path == paths::savedCydiaList;
}

// Whether a copy failed because of what was to be copied.
bool isReadingFault(int error, const std::string& source) {
    struct stat status = {};
    if (::lstat(source.c_str(), &status) != 0)
        return error == ENOENT;
    return error == ELOOP || error == ENOTSUP || (error == EFBIG && status.st_size > largestText);
}

}  // namespace

GuardedFiles::GuardedFiles(FileManager& files, const LiveData& data, const FaultListener& faults,
                           std::string root)
    : files_(files), data_(data), faults_(faults), root_(std::move(root)) {}

bool GuardedFiles::exists(std::string_view path) const {
    return files_.exists(path);
}

bool GuardedFiles::isReadable(std::string_view path) const {
    return files_.isReadable(path);
}

std::optional<std::vector<std::string>> GuardedFiles::list(std::string_view path) const {
    return files_.list(path);
}

// One that does not exist is no surprise: nobody reads without having looked, except on purpose.
std::optional<std::string> GuardedFiles::readText(std::string_view path) const {
    auto text = files_.readText(path);
    reported(text || errno == ENOENT, path, "read");
    return text;
}

std::optional<std::string> GuardedFiles::readData(std::string_view path) const {
    return files_.readData(path);
}

std::uint64_t GuardedFiles::fileSize(std::string_view path) const {
    return files_.fileSize(path);
}

std::optional<std::time_t> GuardedFiles::modificationTime(std::string_view path) const {
    return files_.modificationTime(path);
}

std::int64_t GuardedFiles::fileSystemSize(std::string_view path) const {
    return files_.fileSystemSize(path);
}

std::int64_t GuardedFiles::fileSystemFreeSize(std::string_view path) const {
    return files_.fileSystemFreeSize(path);
}

bool GuardedFiles::remove(std::string_view path) {
    // Whatever is written there next reports it.
    if (foreignLinkIn(root_, paths::folderOf(path)))
        return false;
    if (isSavedList(path) && !KeptList(root_ + std::string(path)).keep())
        return reported(false, path, "removed");
    if (data_.isWhole(path)) {
        faults_(std::string(path) + " is not removed: it leads to the data itself");
        return false;
    }
    const bool done = files_.remove(path);
    reported(done || errno == ENOENT, path, "removed");
    return done;
}

bool GuardedFiles::copy(std::string_view from, std::string_view to) {
    if (!isInPlace(to))
        return false;
    const bool done = files_.copy(from, to);
    if (!done && isReadingFault(errno, root_ + std::string(from)))
        reported(done, from, "read");
    else
        reported(done, to, "written");
    return settled(done, to);
}

bool GuardedFiles::createDirectory(std::string_view path) {
    return isInPlace(path) && reported(files_.createDirectory(path), path, "made");
}

bool GuardedFiles::createFile(std::string_view path) {
    return isInPlace(path) && reported(files_.createFile(path), path, "written");
}

bool GuardedFiles::writeText(std::string_view path, std::string_view text) {
    return isInPlace(path) &&
           settled(reported(files_.writeText(path, text), path, "written"), path);
}

bool GuardedFiles::isInPlace(std::string_view path) const {
    const auto link = foreignLinkIn(root_, paths::folderOf(path));
    if (link)
        faults_(textOfForeignLink(*link));
    return !link;
}

bool GuardedFiles::reported(bool done, std::string_view path, std::string_view verb) const {
    if (!done)
        faults_(failureText(path, verb, errno));
    return done;
}

bool GuardedFiles::settled(bool done, std::string_view list) {
    if (isSavedList(list) && KeptList(root_ + std::string(list)).settle(done))
        faults_(textOfRecovery(list));
    return done;
}

}  // namespace tarnwick
