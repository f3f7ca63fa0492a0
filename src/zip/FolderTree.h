#pragma once

#include <sys/stat.h>

#include <cstdint>
#include <ctime>
#include <string>
#include <string_view>
#include <vector>

#include "zip/Report.h"

namespace tarnwick {

// A file or folder to be archived, as it was when it was found.
struct TreeEntry {
    TreeEntry(std::string found, const struct stat& status);

    std::string path;  // that of a folder ends with a slash
    mode_t mode = 0;
    uid_t user = 0;
    gid_t group = 0;
    std::time_t modified = 0;
    std::time_t accessed = 0;
    std::uint64_t size = 0;  // bytes; 0 for a folder

    bool isFolder() const { return S_ISDIR(mode); }
    // In the archive: the path without leading slashes.
    std::string_view name() const;
};

// The folder with everything below it, links followed, in the order of the names. What cannot be
// archived is reported. What the excluded paths lead to is left out.
std::vector<TreeEntry> readFolderTree(const std::string& folder,
                                      const std::vector<std::string>& excluded, ZipReport& report);

}  // namespace tarnwick
