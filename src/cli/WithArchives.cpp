#include "cli/WithArchives.h"

#include <unistd.h>

#include <algorithm>
#include <filesystem>

#include "cli/CommandTable.h"

namespace tarnwick {

// In the `libexec` of the folder tree that this program was installed or built in.
std::string programWithArchives() {
    std::error_code error;
    const auto folder = std::filesystem::read_symlink("/proc/self/exe", error).parent_path();
    return folder.parent_path() / "libexec/tarnwick/tarnwick";
}

void becomeProgramWithArchives(const Arguments& arguments, char** values) {
    const bool isIts =
        std::ranges::any_of(commandTable(ItemCatalogue()), [&](const Command& command) {
            return command.program == Program::WithArchives && !arguments.words.empty() &&
                   command.name == arguments.words.front();
        });
    if (isIts)
        ::execv(programWithArchives().c_str(), values);
}

}  // namespace tarnwick
