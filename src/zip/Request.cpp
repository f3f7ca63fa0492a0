#include "zip/Request.h"

#include <algorithm>

namespace tarnwick {

namespace {

bool isOption(const std::string& argument) {
    return argument.starts_with('-');
}

// The system's zip resolves patterns and dots in ways of its own.
bool isPlainPath(const std::string& path) {
    const std::string framed = "/" + path + "/";
    return path.find_first_of("*?[]\\") == std::string::npos &&
           framed.find("/./") == std::string::npos && framed.find("/../") == std::string::npos;
}

}  // namespace

std::optional<ZipRequest> parseZipRequest(const std::vector<std::string>& arguments) {
    const auto firstPath = std::find_if_not(arguments.begin(), arguments.end(), isOption);
    std::string options;
    for (auto argument = arguments.begin(); argument != firstPath; ++argument)
        options += argument->substr(1);
    std::ranges::sort(options);
    const std::vector<std::string> paths(firstPath, arguments.end());
    if ((options != "r" && options != "qr") || paths.size() != 2)
        return std::nullopt;
    const std::string &archive = paths[0], &folder = paths[1];
    const bool isOurs = archive.ends_with(".zip") && isPlainPath(archive) && !isOption(folder) &&
                        folder.ends_with('/') && isPlainPath(folder) &&
                        folder.find_first_not_of('/') != std::string::npos;
    return isOurs ? std::optional(ZipRequest{archive, folder, options == "qr"}) : std::nullopt;
}

}  // namespace tarnwick
