#include "copy/SafeguardNames.h"

#include <string_view>

#include "core/SafeguardPaths.h"

namespace tarnwick {

namespace {

std::string belowRoot(std::string_view path) {
    return std::string(path.substr(paths::safeguardRoot.size() + 1));
}

}  // namespace

std::vector<std::string> safeguardNames(const ItemCatalogue& catalogue) {
    std::vector<std::string> names;
    for (const std::string_view list :
         {paths::savedSourcesList, paths::savedCydiaList, paths::savedPackages})
        names.push_back(belowRoot(list));
    for (const BackupItem& item : catalogue)
        for (const std::string& archive : item.archivePaths())
            names.push_back(belowRoot(archive));
    return names;
}

}  // namespace tarnwick
