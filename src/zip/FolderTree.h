#pragma once

#include <sys/stat.h>

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "zip/Report.h"

namespace tarnwick {

// A file or folder to be archived, as it was when it was found.
struct TreeEntry {
    std::string path;  // that of a folder ends with a slash
    struct stat status = {};

    bool isFolder() const { return S_ISDIR(status.st_mode); }
    std::uint64_t size() const {
        return isFolder() ? 0 : static_cast<std::uint64_t>(status.st_size);
    }
    // In the archive: the path without leading slashes.
    std::string_view name() const;
};

// The folder with everything below it, links followed, in the order of the names. What cannot be
// archived is reported. `archive` itself is left out.
std::vector<TreeEntry> readFolderTree(const std::string& folder, const std::string& archive,
                                      ZipReport& report);

}  // namespace tarnwick
