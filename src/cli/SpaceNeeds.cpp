#include "cli/SpaceNeeds.h"

#include <sys/stat.h>

#include <algorithm>
#include <cstdio>
#include <filesystem>
#include <memory>
#include <utility>

#include "core/SafeguardPaths.h"

namespace tarnwick {

namespace {

namespace fs = std::filesystem;

// Bytes on the disk, so that a file with holes counts as what a copy takes.
std::int64_t diskSize(const fs::path& path) {
    constexpr std::int64_t block = 512;
    struct stat status = {};
    return ::lstat(path.c_str(), &status) == 0 ? status.st_blocks * block : 0;
}

std::int64_t treeSize(const fs::path& tree) {
    std::int64_t bytes = diskSize(tree);
    std::error_code error;
    if (!fs::is_directory(fs::symlink_status(tree, error)))
        return bytes;
    fs::recursive_directory_iterator entry(tree, fs::directory_options::skip_permission_denied,
                                           error);
    for (; !error && entry != fs::recursive_directory_iterator(); entry.increment(error))
        bytes += diskSize(entry->path());
    return bytes;
}

// What is not there yet will be where its folder is.
std::string existingPart(std::string path) {
    std::error_code unknown;
    while (path.size() > 1 && !fs::exists(path, unknown))
        path = fs::path(path).parent_path();
    return path;
}

dev_t deviceOf(const std::string& path) {
    struct stat status = {};
    return ::stat(path.c_str(), &status) == 0 ? status.st_dev : dev_t{};
}

// Bytes that the files in the archive take on the disk, whose blocks are half full on average. 0 if
// `unzip` does not tell. The path is a constant.
std::int64_t unpackedSize(const std::string& archive) {
    constexpr std::int64_t halfBlock = 2048;
    const std::unique_ptr<std::FILE, int (*)(std::FILE*)> answer(
        ::popen(("/usr/bin/unzip -Zt " + archive + " 2>/dev/null").c_str(), "re"), ::pclose);
    long long files = 0;
    long long bytes = 0;
    if (!answer || std::fscanf(answer.get(), "%lld %*[a-z], %lld bytes", &files, &bytes) != 2)
        return 0;
    return bytes + files * halfBlock;
}

}  // namespace

SpaceNeeds::SpaceNeeds(const FileReader& files, std::string root)
    : files_(files), root_(std::move(root)) {}

// The safeguard folder lies in the data of one item.
std::int64_t SpaceNeeds::safeguardSizeIn(const std::string& path) const {
    const bool hasSafeguard = paths::safeguardRoot.starts_with(path + "/");
    return hasSafeguard ? treeSize(root_ + std::string(paths::safeguardRoot)) : 0;
}

void SpaceNeeds::take(const std::string& path, std::int64_t bytes) {
    const std::string existing = existingPart(root_ + path);
    Use& use = uses_[deviceOf(existing)];
    if (use.path.empty())
        use.path = existing.substr(std::min(root_.size(), existing.size()));
    use.now += bytes;
    use.most = std::max(use.most, use.now);
}

void SpaceNeeds::addSave(const BackupItem& item) {
    std::int64_t copies = 0;
    for (std::size_t index = 0; index < item.sourcePaths.size(); ++index) {
        const std::string& source = item.sourcePaths[index];
        const std::int64_t copy = treeSize(root_ + source);
        const std::string& archive = item.archives[index].path;
        const std::int64_t old = diskSize(root_ + archive);
        // With the safeguard folder in it at first.
        take(item.stagingPaths[index], copy);
        take(archive, std::max(copy - safeguardSizeIn(source), old));
        take(archive, -old);
        copies += copy;
    }
    take(item.stagingPaths.front(), -copies);
}

void SpaceNeeds::addRestore(const BackupItem& item) {
    for (std::size_t index = 0; index < item.sourcePaths.size(); ++index) {
        const std::string& archive = item.archives[index].path;
        if (!files_.isReadable(archive))
            continue;
        const std::int64_t unpacked = unpackedSize(root_ + archive);
        const std::string& live = item.sourcePaths[index];
        const std::int64_t present = treeSize(root_ + live) - safeguardSizeIn(live);
        take(std::string(paths::unpackedTree), unpacked);
        take(live, std::max<std::int64_t>(unpacked - present, 0));
        take(std::string(paths::unpackedTree), -unpacked);
    }
}

std::optional<SpaceShortage> SpaceNeeds::shortage() const {
    for (const auto& [device, use] : uses_) {
        const std::int64_t free = files_.fileSystemFreeSize(use.path);
        if (use.most > free)
            return SpaceShortage{use.path, use.most, free};
    }
    return std::nullopt;
}

}  // namespace tarnwick
