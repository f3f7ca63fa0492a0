#pragma once

#include <string>
#include <vector>

#include "core/FileManager.h"
#include "core/ItemCatalogue.h"

namespace tarnwick {

// What can be saved: the sources, the packages, or an item.
struct SavedThing {
    std::string word;                    // on the command line
    std::vector<std::string> originals;  // on the device; empty if it is no file
    std::vector<std::string> copies;     // in the safeguard folder
};

// Those that the words name, each once, in the order of the words; "all" is every item.
std::vector<SavedThing> savedThings(const FileReader& files, const ItemCatalogue& catalogue,
                                    const std::vector<std::string>& words);

// Whether there is something to save.
bool hasOriginal(const FileReader& files, const SavedThing& thing);
bool hasEveryCopy(const FileReader& files, const SavedThing& thing);
// Bytes of the copies that there are.
std::int64_t copySize(const FileReader& files, const SavedThing& thing);

}  // namespace tarnwick
