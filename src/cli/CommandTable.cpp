#include "cli/CommandTable.h"

#include <algorithm>
#include <utility>

#include "cli/Arguments.h"
#include "cli/Commands.h"
#include "cli/Words.h"

namespace tarnwick {

namespace {

constexpr std::size_t anyNumber = static_cast<std::size_t>(-1);

const std::vector<std::string> rehearsed = {"--dry-run", "--verbose"};
const std::vector<std::string> confirmed = {"--yes", "--dry-run", "--verbose"};

bool contains(const std::vector<std::string>& words, const std::string& word) {
    return std::find(words.begin(), words.end(), word) != words.end();
}

std::vector<std::string> sizeWords(const ItemCatalogue& catalogue) {
    std::vector<std::string> words = itemWords(catalogue);
    words.insert(words.begin(), everyItem);
    return words;
}

}  // namespace

const std::vector<std::pair<std::string, std::string>>& exitStatusTable() {
    static const std::vector<std::pair<std::string, std::string>> statuses = {
        {"0", "all done"},
        {"1",
         "not all done: something failed, is missing or damaged, the answer was no, or the results "
         "could not be written"},
        {"2",
         "wrong usage; or a confirmation or an address was needed, and there was neither a "
         "terminal "
         "nor the option"},
        {"3", "another run is under way, of the command or of the window"},
        {"4", "not root"},
        {"130", "interrupted; what was under way has been tidied up"},
        {"128+N", "ended by signal N, by SIGINT for example, while nothing was under way"},
    };
    return statuses;
}

const Command* commandOf(const std::vector<Command>& commands, const std::string& name) {
    const auto found = std::ranges::find(commands, name, &Command::name);
    return found == commands.end() ? nullptr : &*found;
}

std::vector<std::string> commandNames(const std::vector<Command>& commands) {
    std::vector<std::string> names;
    for (const Command& command : commands)
        names.push_back(command.name);
    return names;
}

bool knowsOption(const Command& command, const Option& option) {
    return option.isForEveryVerb || contains(command.options, option.word);
}

std::vector<Command> commandTable(const ItemCatalogue& catalogue) {
    const auto targets = targetWords(catalogue);
    const auto items = itemWords(catalogue);
    std::vector<Command> commands = {
        {.name = "save",
         .synopsis = "sources | packages | all | ITEM...",
         .purpose = "save into the safeguard folder",
         .reach = Reach::Changes,
         .words = targets,
         .fewestWords = 1,
         .mostWords = anyNumber,
         .options = confirmed,
         .run = saveTargets},
        {.name = "restore",
         .synopsis = "sources | packages | all | ITEM...",
         .purpose = "put back what was saved",
         .reach = Reach::Changes,
         .words = targets,
         .fewestWords = 1,
         .mostWords = anyNumber,
         .options = {"--yes", "--then", "--dry-run", "--verbose"},
         .run = restoreTargets},
        {.name = "list",
         .purpose = "list the safeguard folder, with sizes and dates, and what is not saved",
         .run = listSafeguard},
        {.name = "check",
         .synopsis = "[ITEM...]",
         .purpose = "ready for a wipe? test the archives, and compare them with the device",
         .program = Program::WithArchives,
         .words = items,
         .mostWords = anyNumber,
         .options = {"--archives-only", "--dry-run", "--verbose"},
         .run = checkForWipe},
        {.name = "compare",
         .synopsis = "[ITEM...]",
         .purpose = "compare the files on the device with those in the archives",
         .program = Program::WithArchives,
         .words = items,
         .mostWords = anyNumber,
         .options = {"--verbose"},
         .run = compareFiles},
        {.name = "size",
         .synopsis = "all | ITEM...",
         .purpose = "print the backup sizes of items",
         .reach = Reach::Changes,
         .words = sizeWords(catalogue),
         .fewestWords = 1,
         .mostWords = anyNumber,
         .options = rehearsed,
         .run = showSize},
        {.name = "storage", .purpose = "print total and free space", .run = showStorage},
        {.name = "folders",
         .synopsis = "[NAME]",
         .purpose = "recreate the safeguard folders",
         .reach = Reach::Changes,
         .words = folderWords(),
         .mostWords = 1,
         .options = {"--dry-run"},
         .run = recreateFolders},
        {.name = "remove",
         .synopsis = "backups | sources-list",
         .purpose = "remove the archives, or the restored sources",
         .reach = Reach::Changes,
         .words = {"backups", "sources-list"},
         .fewestWords = 1,
         .mostWords = 1,
         .options = {"--yes", "--dry-run"},
         .run = removeSaved},
        {.name = "respring",
         .purpose = "restart the home screen",
         .reach = Reach::Changes,
         .options = confirmed,
         .run = respringDevice},
        {.name = "reboot",
         .purpose = "restart the device",
         .reach = Reach::Changes,
         .options = confirmed,
         .run = rebootDevice},
        {.name = "export",
         .synopsis = "[FILE | -]",
         .purpose = "write the safeguard folder as one stream, to be kept elsewhere",
         .reach = Reach::Reads,
         .program = Program::WithArchives,
         .takesFile = true,
         .mostWords = 1,
         .options = {"--no-check", "--verify", "--dry-run"},
         .run = exportSafeguard},
        {.name = "import",
         .synopsis = "[FILE | -]",
         .purpose = "put a safeguard folder that was exported in place",
         .reach = Reach::Changes,
         .program = Program::WithArchives,
         .takesFile = true,
         .mostWords = 1,
         .options = {"--dry-run"},
         .run = importSafeguard},
        {.name = "mail",
         .synopsis = "[--to ADDRESS]...",
         .purpose = "mail the saved package list",
         .options = {"--to", "--dry-run"},
         .run = mailPackageList},
        {.name = "faq", .purpose = "print the help texts", .run = showHelpTexts},
        {.name = "help",
         .synopsis = "[COMMAND]",
         .purpose = "print this help, or that of the command",
         .mostWords = 1,
         .run = showHelp},
    };
    commands.back().words = commandNames(commands);
    return commands;
}

}  // namespace tarnwick
