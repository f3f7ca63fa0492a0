#include "compare/Comparison.h"

#include <sys/stat.h>

#include <algorithm>
#include <cerrno>
#include <unordered_set>
#include <utility>

#include "compare/ArchiveIndex.h"
#include "compare/FileSums.h"
#include "core/SafeguardPaths.h"
#include "zip/FolderTree.h"

namespace tarnwick {

namespace {

// Takes note of what a save could not read.
class UnreadableFiles : public TreeReport {
public:
    void warn(std::string_view, std::string_view) override {}
    void skip(std::string_view, std::string_view subject) override { paths_.emplace(subject); }

    // That of a folder is also that of an entry.
    bool take(const std::string& path) { return paths_.erase(path) > 0; }
    const std::unordered_set<std::string>& rest() const { return paths_; }

private:
    std::unordered_set<std::string> paths_;
};

bool exists(const std::string& path) {
    struct stat status = {};
    return ::stat(path.c_str(), &status) == 0;
}

// One folder and its archive.
class Pair {
public:
    Pair(std::string root, const std::string& source, const std::string& staging,
         std::string archive)
        : root_(std::move(root)),
          source_(root_ + source),
          prefix_(staging.substr(1)),
          archive_(std::move(archive)) {}

    ArchiveComparison compare() {
        ArchiveComparison result = {.archive = archive_, .hasSource = exists(source_)};
        auto index = indexOf(root_ + archive_);
        if (const auto* const error = std::get_if<IndexError>(&index))
            result.archiveError = *error;
        else
            index_ = std::get<ArchiveIndex>(std::move(index));
        if (result.archiveError != 0 && result.archiveError != ENOENT)
            return result;
        addFilesOfDevice(result.files);
        addFilesOfArchive(result.files);
        return result;
    }

private:
    // What a path below the source is called in the archive.
    std::string archivedName(const std::string& path) const {
        return prefix_ + path.substr(source_.size());
    }

    std::string shown(const std::string& path) const { return path.substr(root_.size()); }

    void addFilesOfDevice(std::vector<ComparedFile>& files) {
        UnreadableFiles unreadable;
        std::vector<FileSum> sums;
        std::vector<std::size_t> places;  // of the sums
        for (const TreeEntry& entry :
             readFolderTree(source_, {root_ + std::string(paths::safeguardRoot)}, unreadable)) {
            files.push_back(compared(entry));
            if (unreadable.take(entry.path))
                files.back().state = FileState::Unreadable;
            else if (files.back().state == FileState::Same && !entry.isFolder()) {
                sums.push_back({.path = entry.path});
                places.push_back(files.size() - 1);
            }
        }
        for (const std::string& path : unreadable.rest())
            files.push_back({.path = shown(path), .state = FileState::Unreadable});
        readSums(sums);
        for (std::size_t index = 0; index < sums.size(); ++index)
            files[places[index]].state = stateOf(sums[index]);
    }

    // By existence and size.
    ComparedFile compared(const TreeEntry& entry) const {
        ComparedFile file = {.path = shown(entry.path), .size = entry.size};
        const auto archived = index_.find(archivedName(entry.path));
        if (archived == index_.end()) {
            file.state = FileState::NotSaved;
            return file;
        }
        file.archivedSize = archived->second.size;
        if (file.size != file.archivedSize)
            file.state = FileState::Changed;
        return file;
    }

    FileState stateOf(const FileSum& sum) const {
        if (sum.error != 0)
            return FileState::Unreadable;
        const ArchivedFile& archived = index_.at(archivedName(sum.path));
        const bool isSame = sum.size == archived.size && sum.crc == archived.crc;
        return isSame ? FileState::Same : FileState::Changed;
    }

    void addFilesOfArchive(std::vector<ComparedFile>& files) const {
        std::unordered_set<std::string> found;
        for (const ComparedFile& file : files)
            found.insert(archivedName(root_ + file.path));
        const std::size_t first = files.size();
        for (const auto& [name, archived] : index_)
            if (name.starts_with(prefix_ + "/") && !found.contains(name))
                files.push_back({.path = shown(source_ + name.substr(prefix_.size())),
                                 .state = FileState::OnlyArchived,
                                 .archivedSize = archived.size});
        std::sort(files.begin() + static_cast<std::ptrdiff_t>(first), files.end(),
                  [](const auto& one, const auto& other) { return one.path < other.path; });
    }

    const std::string root_;
    const std::string source_;
    const std::string prefix_;
    const std::string archive_;
    ArchiveIndex index_;
};

}  // namespace

std::array<std::size_t, fileStates> ArchiveComparison::counts() const {
    std::array<std::size_t, fileStates> counts = {};
    for (const ComparedFile& file : files)
        ++counts[static_cast<std::size_t>(file.state)];
    return counts;
}

std::vector<ArchiveComparison> compare(const BackupItem& item, const std::string& root) {
    std::vector<ArchiveComparison> comparisons;
    for (std::size_t index = 0; index < item.sourcePaths.size(); ++index)
        comparisons.push_back(
            Pair(root, item.sourcePaths[index], item.stagingPaths[index], item.archives[index].path)
                .compare());
    return comparisons;
}

}  // namespace tarnwick
