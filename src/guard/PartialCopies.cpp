#include "guard/PartialCopies.h"

#include <chrono>

namespace tarnwick {

namespace fs = std::filesystem;

namespace {

// The clock of a file system may lag behind.
constexpr std::chrono::seconds margin(2);

// What cannot be looked at counts as complete.
bool isPartial(const fs::path& original, const fs::path& copy, fs::file_time_type begin) {
    std::error_code error;
    const auto size = fs::file_size(copy, error);
    return !error && fs::file_size(original, error) > size && !error &&
           fs::last_write_time(original, error) < begin - margin && !error;
}

}  // namespace

void removePartialCopies(const std::string& original, const std::string& copy,
                         fs::file_time_type begin) {
    std::error_code error;
    fs::recursive_directory_iterator entry(copy, error);
    for (; !error && entry != fs::recursive_directory_iterator(); entry.increment(error)) {
        std::error_code ignored;
        const fs::path& path = entry->path();
        if (!entry->is_symlink(ignored) &&
            isPartial(original / path.lexically_relative(copy), path, begin))
            fs::remove(path, ignored);
    }
}

}  // namespace tarnwick
