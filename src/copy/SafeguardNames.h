#pragma once

#include <string>
#include <vector>

#include "core/ItemCatalogue.h"

namespace tarnwick {

// The names that the files of a safeguard folder can have, below it: lists, then archives.
std::vector<std::string> safeguardNames(const ItemCatalogue& catalogue);

inline bool isArchiveName(const std::string& name) {
    return name.ends_with(".zip");
}

}  // namespace tarnwick
