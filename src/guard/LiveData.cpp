#include "guard/LiveData.h"

#include <algorithm>
#include <filesystem>
#include <utility>

namespace tarnwick {

namespace fs = std::filesystem;

namespace {

bool isInOrIs(const fs::path& inner, const fs::path& outer) {
    const auto end = std::mismatch(outer.begin(), outer.end(), inner.begin(), inner.end()).first;
    return end == outer.end();
}

}  // namespace

LiveData::LiveData(const ItemCatalogue& catalogue, std::string root) : root_(std::move(root)) {
    for (const BackupItem& item : catalogue)
        sources_.insert(sources_.end(), item.sourcePaths.begin(), item.sourcePaths.end());
}

bool LiveData::isWhole(std::string_view path) const {
    std::error_code error;
    const fs::path place = root_ + std::string(path);
    if (fs::symlink_status(place, error).type() != fs::file_type::directory)
        return false;
    const fs::path folder = fs::canonical(place, error);
    return !error && std::any_of(sources_.begin(), sources_.end(), [&](const auto& source) {
        std::error_code missing;
        const fs::path live = fs::canonical(root_ + source, missing);
        return !missing && isInOrIs(live, folder);
    });
}

}  // namespace tarnwick
