#pragma once

#include <optional>
#include <string>
#include <vector>

namespace tarnwick {

// What this program does by itself.
struct ZipRequest {
    std::string archive;
    std::string folder;  // with a slash at the end
    bool isQuiet = false;
};

// `zip -r ARCHIVE.zip FOLDER/`, also with -q; null for any other use, which is the system's zip's.
std::optional<ZipRequest> parseZipRequest(const std::vector<std::string>& arguments);

}  // namespace tarnwick
