#include "guard/LinksInTheWay.h"

#include <filesystem>

namespace tarnwick {

namespace fs = std::filesystem;

// A link in place of a folder is refused by `cp`, with all that would be below it.
void removeLinksInTheWay(const std::string& tree, const std::string& target) {
    std::error_code error;
    fs::recursive_directory_iterator entry(tree, error);
    for (; !error && entry != fs::recursive_directory_iterator(); entry.increment(error)) {
        std::error_code ignored;
        const fs::path counterpart = target / entry->path().lexically_relative(tree);
        const bool isFolder = entry->is_directory(ignored) && !entry->is_symlink(ignored);
        const auto type = fs::symlink_status(counterpart, ignored).type();
        if (isFolder && type != fs::file_type::directory)
            entry.disable_recursion_pending();
        else if (!isFolder && type != fs::file_type::regular && type != fs::file_type::directory)
            fs::remove(counterpart, ignored);
    }
}

}  // namespace tarnwick
