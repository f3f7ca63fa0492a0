#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <vector>

#include "core/ItemCatalogue.h"

namespace tarnwick {

enum class FileState { Same, Changed, NotSaved, OnlyArchived, Unreadable };
inline constexpr std::size_t fileStates = 5;

// A file or folder, on the device or in the archive or both.
struct ComparedFile {
    std::string path;  // on the device; that of a folder ends with a slash
    FileState state = FileState::Same;
    std::uint64_t size = 0;          // bytes; 0 of a folder, and of what is not there
    std::uint64_t archivedSize = 0;  // bytes

    bool isFolder() const { return path.ends_with('/'); }
};

// A folder of a data set on the device against its archive.
struct ArchiveComparison {
    std::string archive;     // the path
    int archiveError = 0;    // as of `indexOf`; ENOENT counts as an archive without entries
    bool hasSource = false;  // whether the folder is on the device at all
    std::vector<ComparedFile> files;  // in the order of their names; those only archived come last

    std::array<std::size_t, fileStates> counts() const;
};

// One for each archive of the item. All paths are below the root; none in the result has it.
// Reads the archive's directory and, where sizes agree, the files on the device. Links are followed
// as a save does. Of an archive that cannot be read, no files are compared.
std::vector<ArchiveComparison> compare(const BackupItem& item, const std::string& root);

}  // namespace tarnwick
