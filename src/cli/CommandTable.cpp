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
        {"1", "an archive or a backup is missing or damaged, the answer was no, or the run failed"},
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
        {"save", "sources | packages | all | ITEM...", "save into the safeguard folder",
         Reach::Changes, targets, 1, anyNumber, saveTargets},
        {"restore", "sources | packages | all | ITEM...", "put back what was saved", Reach::Changes,
         targets, 1, anyNumber, restoreTargets},
        {"list",
         "",
         "what the safeguard folder holds, with size and date",
         Reach::Looks,
         {},
         0,
         0,
         listSafeguard},
        {"check", "[ITEM...]", "test every archive that is there", Reach::Looks, items, 0,
         anyNumber, checkArchives},
        {"size", "ITEM", "the backup size of one item", Reach::Changes, items, 1, 1, tellSize},
        {"storage", "", "total and free space", Reach::Looks, {}, 0, 0, tellStorage},
        {"folders", "[NAME]", "recreate the safeguard folders", Reach::Changes, folderWords(), 0, 1,
         recreateFolders},
        {"remove",
         "backups | sources-list",
         "remove the archives, or the restored sources",
         Reach::Changes,
         {"backups", "sources-list"},
         1,
         1,
         removeSaved},
        {"respring", "", "restart the home screen", Reach::Changes, {}, 0, 0, respringDevice},
        {"reboot", "", "restart the device", Reach::Changes, {}, 0, 0, rebootDevice},
        {"mail",
         "[--to ADDRESS]...",
         "mail the saved package list",
         Reach::Looks,
         {},
         0,
         0,
         mailPackageList},
        {"faq", "", "the help texts", Reach::Looks, {}, 0, 0, tellHelpTexts},
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
