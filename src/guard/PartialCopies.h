#pragma once

#include <filesystem>
#include <string>

namespace tarnwick {

// After a copy that failed: takes away what is shorter than its original, unless that has been
// written to since the copy began.
void removePartialCopies(const std::string& original, const std::string& copy,
                         std::filesystem::file_time_type begin);

}  // namespace tarnwick
