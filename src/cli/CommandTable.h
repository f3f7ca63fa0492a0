#pragma once

#include <cstddef>
#include <string>
#include <utility>
#include <vector>

#include "cli/ExitStatus.h"
#include "cli/Session.h"

namespace tarnwick {

enum class Reach {
    Looks,   // for anybody, at any time
    Changes  // needs root, and that no other run is under way
};

// One verb of the command: the table of them feeds dispatch, help, man page and completions alike.
struct Command {
    std::string name;
    std::string synopsis;  // of what follows the name
    std::string purpose;
    Reach reach;
    std::vector<std::string> words;  // what may follow the name; empty if nothing may
    std::size_t fewestWords;
    std::size_t mostWords;
    ExitStatus (*run)(Session& session, const std::vector<std::string>& words);
};

std::vector<Command> commandTable(const ItemCatalogue& catalogue);

// Each exit status and what it means.
const std::vector<std::pair<std::string, std::string>>& exitStatusTable();

// The whole help, from the table.
std::string helpText(const ItemCatalogue& catalogue);

}  // namespace tarnwick
