#include <algorithm>

#include "cli/CommandTable.h"
#include "cli/Commands.h"
#include "cli/Words.h"

namespace tarnwick {

namespace {

using Rows = std::vector<std::pair<std::string, std::string>>;

constexpr std::size_t widest = 79;  // columns, of a usual terminal less one

// Text that begins at the column, broken at blanks; further lines begin there too.
std::string inColumn(const std::string& text, std::size_t column) {
    std::string result;
    for (std::size_t start = 0; start < text.size();) {
        std::size_t end = text.size();
        if (column + end - start > widest)
            end = text.rfind(' ', start + widest - column);
        result +=
            (start == 0 ? "" : "\n" + std::string(column, ' ')) + text.substr(start, end - start);
        start = end + 1;
    }
    return result;
}

// Two columns under a heading, the second one aligned.
std::string table(const std::string& heading, const Rows& rows) {
    std::size_t width = 0;
    for (const auto& [left, right] : rows)
        width = std::max(width, left.size());
    const std::size_t column = width + 4;
    std::string text = "\n\n" + heading + ":";
    for (const auto& [left, right] : rows) {
        text += "\n  " + left;
        if (!right.empty())
            text += std::string(column - left.size() - 2, ' ') + inColumn(right, column);
    }
    return text;
}

std::string usageOf(const Command& command) {
    return command.name + (command.synopsis.empty() ? "" : " " + command.synopsis);
}

Rows commandRows(const std::vector<Command>& commands) {
    Rows rows;
    for (const Command& command : commands)
        rows.emplace_back(usageOf(command), command.purpose);
    return rows;
}

Rows optionRows(const std::function<bool(const Option&)>& isWanted) {
    Rows rows;
    for (const Option& option : optionTable())
        if (isWanted(option))
            rows.emplace_back((option.shortWord.empty() ? "" : option.shortWord + ", ") +
                                  option.word + (option.values.empty() ? "" : " " + option.values),
                              option.purpose);
    return rows;
}

Rows wordRows(const std::vector<std::string>& words) {
    Rows rows;
    for (const std::string& word : words)
        rows.emplace_back(word, "");
    return rows;
}

std::string wholeHelp(const ItemCatalogue& catalogue) {
    return "Usage: tarnwick COMMAND [WORD...] [OPTION...]\n\n"
           "Saves what a wipe of the device would lose, and puts it back." +
           table("Commands", commandRows(commandTable(catalogue))) +
           table("ITEM is one of", wordRows(itemWords(catalogue))) +
           table("Options", optionRows([](const Option&) { return true; })) +
           table("Exit status", exitStatusTable());
}

std::string helpOf(const Command& command) {
    const auto isKnown = [&command](const Option& option) { return knowsOption(command, option); };
    return inColumn("Usage: tarnwick " + usageOf(command) + " [OPTION...]", 0) + "\n\n" +
           inColumn(
               "To " + command.purpose + (command.reach == Reach::Changes ? ". Needs root." : "."),
               0) +
           (command.words.empty() ? "" : table("Words", wordRows(command.words))) +
           table("Options", optionRows(isKnown));
}

}  // namespace

ExitStatus showHelp(Session& session, const std::vector<std::string>& words) {
    const auto commands = commandTable(session.catalogue());
    const std::string text = words.empty() ? wholeHelp(session.catalogue())
                                           : helpOf(*commandOf(commands, words.front()));
    session.output().result(text, {{"help", text}});
    return AllDone;
}

}  // namespace tarnwick
