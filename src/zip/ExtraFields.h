#pragma once

#include <cstdint>
#include <ctime>
#include <vector>

#include "zip/FolderTree.h"

namespace tarnwick {

// What the system's zip notes of a file beyond the format's first version.
struct ExtraField {
    std::uint16_t id = 0;
    std::vector<std::uint8_t> local;    // before the data
    std::vector<std::uint8_t> central;  // in the directory at the end
};

// The times to the second, and the owner's ids. A field without data stands for one that the entry
// must not have, as the times are out of its range.
std::vector<ExtraField> extraFieldsOf(const TreeEntry& entry);

// The modification time as the format's first version can hold it: in local time, with even
// seconds, from 1980 to 2107.
std::time_t nearestArchiveTime(std::time_t time);

}  // namespace tarnwick
