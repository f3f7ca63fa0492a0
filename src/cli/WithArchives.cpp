#include "cli/WithArchives.h"

#include <unistd.h>

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
    if (arguments.words.empty())
        return;
    for (const Command& command : commandTable(ItemCatalogue()))
        if (command.name == arguments.words.front() && command.program == Program::WithArchives)
            ::execv(programWithArchives().c_str(), values);
}

}  // namespace tarnwick
