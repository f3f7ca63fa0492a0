#include "guard/ScratchPlaces.h"

#include <sys/stat.h>
#include <unistd.h>

#include <filesystem>
#include <utility>

#include "core/SafeguardPaths.h"
#include "guard/ForeignLinks.h"
#include "guard/LineWords.h"

namespace tarnwick {

namespace {

constexpr mode_t onlyOwners = 0700;
constexpr mode_t withoutOthersWriting = 0755;

bool isForeign(const std::string& path) {
    struct stat status = {};
    return ::lstat(path.c_str(), &status) == 0 &&
           (S_ISLNK(status.st_mode) || status.st_uid != ::geteuid());
}

// The copy of a data set that is a link. In the folder of all users, a line would delete through
// it.
bool isCopiedLink(const std::string& path) {
    struct stat status = {};
    return path.find(paths::archiveFolder) != std::string::npos &&
           ::lstat(path.c_str(), &status) == 0 && S_ISLNK(status.st_mode) && status.st_nlink == 1 &&
           status.st_uid == ::geteuid();
}

std::optional<mode_t> modeOfFolder(const std::string& path) {
    struct stat status = {};
    if (::stat(path.c_str(), &status) != 0 || !S_ISDIR(status.st_mode))
        return std::nullopt;
    return status.st_mode & withoutOthersWriting;
}

}  // namespace

ScratchPlaces::ScratchPlaces(const ItemCatalogue& catalogue, const LiveData& data, std::string root)
    : data_(data), root_(std::move(root)) {
    places_.emplace_back(paths::unpackedTree);
    for (const BackupItem& item : catalogue)
        for (const auto* paths : {&item.stagingPaths, &item.sizeCopyPaths, &item.sizeArchivePaths})
            for (const std::string& path : *paths)
                places_.push_back(path);
}

void ScratchPlaces::remove(const std::string& place) const {
    std::error_code ignored;
    if (!data_.isWhole(place) && !foreignLinkIn(root_, paths::folderOf(place)))
        std::filesystem::remove_all(root_ + place, ignored);
}

void ScratchPlaces::clear() const {
    for (const std::string& place : places_)
        remove(place);
}

void ScratchPlaces::clearForeign() const {
    for (const std::string& place : places_)
        if (isForeign(root_ + place) && !isCopiedLink(root_ + place))
            remove(place);
}

void ScratchPlaces::clearUnpacked() const {
    remove(std::string(paths::unpackedTree));
}

std::optional<std::string> ScratchPlaces::claimFor(const std::string& line) const {
    const LineWords words(line);
    if (words.last() != paths::scratchFolder)
        return std::nullopt;
    if (words.program() == "unzip")
        return claim(std::string(paths::unpackedTree), onlyOwners);
    // As the copy would make it: a folder only, with the permissions of the original.
    const std::string& source = words.operand();
    const auto mode = modeOfFolder(root_ + source);
    if (words.program() != "cp" || !mode)
        return std::nullopt;
    return claim(std::string(paths::scratchFolder) + source.substr(source.rfind('/') + 1), *mode);
}

// Another user may be faster, but not for ever.
std::optional<std::string> ScratchPlaces::claim(const std::string& place, mode_t mode) const {
    constexpr int attempts = 1000;
    const std::string path = root_ + place;
    for (int attempt = 0; attempt < attempts; ++attempt) {
        if (::mkdir(path.c_str(), mode) == 0)
            return path;
        if (!isForeign(path))
            return std::nullopt;
        remove(place);
    }
    return std::nullopt;
}

}  // namespace tarnwick
