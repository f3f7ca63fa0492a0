#include "zip/SystemZip.h"

#include <unistd.h>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <string>
#include <string_view>

namespace tarnwick {

int becomeSystemZip(char** arguments) {
    constexpr int notFound = 127;
    const char* const path = std::getenv("PATH");
    std::string_view folders = path != nullptr ? path : "/usr/bin:/bin";
    while (!folders.empty()) {
        const std::size_t end = std::min(folders.find(':'), folders.size());
        const std::string program = std::string(folders.substr(0, end)) + "/zip";
        std::error_code error;
        if (!std::filesystem::equivalent(program, "/proc/self/exe", error) && !error)
            ::execv(program.c_str(), arguments);
        folders.remove_prefix(std::min(end + 1, folders.size()));
    }
    std::fputs("zip: the system's zip is not there\n", stderr);
    return notFound;
}

}  // namespace tarnwick
