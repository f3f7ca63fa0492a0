#pragma once

#include <cstddef>
#include <string>
#include <utility>
#include <vector>

#include "cli/Arguments.h"
#include "cli/ExitStatus.h"
#include "cli/Session.h"

namespace tarnwick {

enum class Reach {
    Looks,   // for everybody, at any time
    Reads,   // needs root, and that no other run changes anything meanwhile
    Changes  // needs root, and that no other run is under way
};

// Which program does it. The libraries that copies and archives take would slow down the start of
// all other verbs.
enum class Program { Light, WithArchives };

// One verb of the command. Their table feeds dispatch, help, man page and completions.
struct Command {
    std::string name;
    std::string synopsis = {};  // of what follows the name
    std::string purpose;
    Reach reach = Reach::Looks;
    Program program = Program::Light;
    std::vector<std::string> words = {};  // what may follow the name
    bool takesFile = false;               // what follows is the path of a file
    std::size_t fewestWords = 0;
    std::size_t mostWords = 0;
    std::vector<std::string> options = {};  // those that it knows besides those of every verb
    ExitStatus (*run)(Session& session, const std::vector<std::string>& words);
};

std::vector<Command> commandTable(const ItemCatalogue& catalogue);

// Each exit status and what it means.
const std::vector<std::pair<std::string, std::string>>& exitStatusTable();

// Null if there is no such verb. Points into the table.
const Command* commandOf(const std::vector<Command>& commands, const std::string& name);

std::vector<std::string> commandNames(const std::vector<Command>& commands);

bool knowsOption(const Command& command, const Option& option);

}  // namespace tarnwick
