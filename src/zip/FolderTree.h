#pragma once

#include <sys/stat.h>

#include <cstdint>
#include <ctime>
#include <string>
#include <string_view>
#include <vector>

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

// What is said of that which is not among the entries.
class TreeReport {
public:
    virtual ~TreeReport() = default;
    // It is nothing that could be archived: a pipe, a link to nothing.
    virtual void warn(std::string_view message, std::string_view subject) = 0;
    // It cannot be read.
    virtual void skip(std::string_view message, std::string_view subject) = 0;
};

// The folder with everything below it, links followed, in the order of the names. What cannot be
// archived is reported. What the excluded paths lead to is left out.
std::vector<TreeEntry> readFolderTree(const std::string& folder,
                                      const std::vector<std::string>& excluded, TreeReport& report);

}  // namespace tarnwick
