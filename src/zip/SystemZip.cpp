#include "zip/SystemZip.h"

#include <unistd.h>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

namespace tarnwick {

namespace {

std::vector<std::string> programsOnPath() {
    const char* const path = std::getenv("PATH");
    std::string_view folders = path != nullptr ? path : "/usr/bin:/bin";
    std::vector<std::string> programs;
    while (!folders.empty()) {
        const std::size_t end = std::min(folders.find(':'), folders.size());
        programs.push_back(std::string(folders.substr(0, end)) + "/zip");
        folders.remove_prefix(std::min(end + 1, folders.size()));
    }
    return programs;
}

bool isThisProgram(const std::string& program) {
    std::error_code error;
    return std::filesystem::equivalent(program, "/proc/self/exe", error);
}

}  // namespace

int becomeSystemZip(char** arguments) {
    constexpr int notFound = 127;
    const std::vector<std::string> programs = programsOnPath();
    // Only what comes later: two of our kind would go on to each other for ever.
    const auto own = std::ranges::find_if(programs, isThisProgram);
    for (auto program = own == programs.end() ? programs.begin() : own + 1;
         program != programs.end(); ++program)
        ::execv(program->c_str(), arguments);
    std::fputs("zip: the system's zip is not there\n", stderr);
    return notFound;
}

}  // namespace tarnwick
