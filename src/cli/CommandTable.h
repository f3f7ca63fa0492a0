#pragma once

#include <cstddef>
#include <string>
#include <utility>
#include <vector>

#include "cli/ExitStatus.h"
#include "cli/Session.h"

namespace tarnwick {

enum class Reach {
    Looks,   // for everybody, at any time
    Changes  // needs root, and that no other run is under way
};

// One verb of the command. Their table feeds dispatch, help, man page and completions.
struct Command {
    std::string name;
    std::string synopsis = {};  // of what follows the name
    std::string purpose;
    Reach reach = Reach::Looks;
    std::vector<std::string> words = {};  // what may follow the name
    std::size_t fewestWords = 0;
    std::size_t mostWords = 0;
    ExitStatus (*run)(Session& session, const std::vector<std::string>& words);
};

std::vector<Command> commandTable(const ItemCatalogue& catalogue);

// Each exit status and what it means.
const std::vector<std::pair<std::string, std::string>>& exitStatusTable();

// The whole help, from the table.
std::string helpText(const ItemCatalogue& catalogue);

}  // namespace tarnwick
