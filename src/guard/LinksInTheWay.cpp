#include "guard/LinksInTheWay.h"

#include <filesystem>

namespace tarnwick {

namespace fs = std::filesystem;

namespace {

// Another name of the file would have the new content too.
bool isAFileOfItsOwn(const fs::path& path) {
    std::error_code error;
    return fs::symlink_status(path, error).type() == fs::file_type::regular &&
           fs::hard_link_count(path, error) == 1;
}

}  // namespace

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
        else if (!isFolder && type != fs::file_type::directory && !isAFileOfItsOwn(counterpart))
            fs::remove(counterpart, ignored);
    }
}

}  // namespace tarnwick
