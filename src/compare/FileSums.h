#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace tarnwick {

// A file to be read, and what was found.
struct FileSum {
    std::string path;
    std::uint64_t size = 0;  // bytes, as far as it was read
    std::uint32_t crc = 0;   // as zip archives have it
    int error = 0;           // errno if it could not be read, or 0
};

// Reads all files, on all cores.
void readSums(std::vector<FileSum>& files);

}  // namespace tarnwick
