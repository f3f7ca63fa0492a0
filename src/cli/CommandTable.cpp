#include "cli/CommandTable.h"

#include <algorithm>
#include <utility>

#include "cli/Commands.h"
#include "cli/Words.h"

namespace tarnwick {

namespace {

using Rows = std::vector<std::pair<std::string, std::string>>;

constexpr std::size_t anyNumber = static_cast<std::size_t>(-1);

// Two columns under a heading, the second one aligned.
std::string table(const std::string& heading, const Rows& rows) {
    std::size_t width = 0;
    for (const auto& [left, right] : rows)
        width = std::max(width, left.size());
    std::string text = "\n\n" + heading + ":";
    for (const auto& [left, right] : rows) {
        text += "\n  " + left;
        if (!right.empty())
            text += std::string(width - left.size() + 2, ' ') + right;
    }
    return text;
}

Rows commandRows(const ItemCatalogue& catalogue) {
    Rows rows;
    for (const Command& command : commandTable(catalogue))
        rows.emplace_back(command.name + (command.synopsis.empty() ? "" : " " + command.synopsis),
                          command.purpose);
    return rows;
}

Rows optionRows() {
    Rows rows;
    for (const Option& option : optionTable())
        rows.emplace_back((option.shortWord.empty() ? "" : option.shortWord + ", ") + option.word +
                              (option.values.empty() ? "" : " " + option.values),
                          option.purpose);
    return rows;
}

Rows itemRows(const ItemCatalogue& catalogue) {
    Rows rows;
    for (const std::string& word : itemWords(catalogue))
        rows.emplace_back(word, "");
    return rows;
}

}  // namespace

const std::vector<std::pair<std::string, std::string>>& exitStatusTable() {
    static const Rows statuses = {
        {"0", "all done"},
        {"1", "not all done: something failed, is missing or damaged, or the answer was no"},
        {"2", "wrong usage"},
        {"3", "another run is under way"},
        {"4", "not root"},
        {"130", "interrupted"},
    };
    return statuses;
}

std::vector<Command> commandTable(const ItemCatalogue& catalogue) {
    const auto targets = targetWords(catalogue);
    const auto items = itemWords(catalogue);
    return {
        {.name = "save",
         .synopsis = "sources | packages | all | ITEM...",
         .purpose = "save into the safeguard folder",
         .reach = Reach::Changes,
         .words = targets,
         .fewestWords = 1,
         .mostWords = anyNumber,
         .run = saveTargets},
        {.name = "restore",
         .synopsis = "sources | packages | all | ITEM...",
         .purpose = "put back what was saved",
         .reach = Reach::Changes,
         .words = targets,
         .fewestWords = 1,
         .mostWords = anyNumber,
         .run = restoreTargets},
        {.name = "list",
         .purpose = "list the safeguard folder, with sizes and dates",
         .run = listSafeguard},
        {.name = "check",
         .synopsis = "[ITEM...]",
         .purpose = "test the archives",
         .words = items,
         .mostWords = anyNumber,
         .run = checkArchives},
        {.name = "size",
         .synopsis = "ITEM",
         .purpose = "print the backup size of one item",
         .reach = Reach::Changes,
         .words = items,
         .fewestWords = 1,
         .mostWords = 1,
         .run = showSize},
        {.name = "storage", .purpose = "print total and free space", .run = showStorage},
        {.name = "folders",
         .synopsis = "[NAME]",
         .purpose = "recreate the safeguard folders",
         .reach = Reach::Changes,
         .words = folderWords(),
         .mostWords = 1,
         .run = recreateFolders},
        {.name = "remove",
         .synopsis = "backups | sources-list",
         .purpose = "remove the archives, or the restored sources",
         .reach = Reach::Changes,
         .words = {"backups", "sources-list"},
         .fewestWords = 1,
         .mostWords = 1,
         .run = removeSaved},
        {.name = "respring",
         .purpose = "restart the home screen",
         .reach = Reach::Changes,
         .run = respringDevice},
        {.name = "reboot",
         .purpose = "restart the device",
         .reach = Reach::Changes,
         .run = rebootDevice},
        {.name = "mail",
         .synopsis = "[--to ADDRESS]...",
         .purpose = "mail the saved package list",
         .run = mailPackageList},
        {.name = "faq", .purpose = "print the help texts", .run = showHelpTexts},
    };
}

std::string helpText(const ItemCatalogue& catalogue) {
    return "Usage: tarnwick COMMAND [WORD...] [OPTION...]\n\n"
           "Saves what a wipe of the device would lose, and puts it back." +
           table("Commands", commandRows(catalogue)) +
           table("ITEM is one of", itemRows(catalogue)) + table("Options", optionRows()) +
           table("Exit status", exitStatusTable());
}

}  // namespace tarnwick
