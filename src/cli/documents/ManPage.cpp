#include <algorithm>
#include <cctype>

#include "cli/CommandTable.h"
#include "cli/JsonFields.h"
#include "cli/Words.h"
#include "cli/documents/Fragments.h"
#include "core/Characters.h"
#include "core/JoinedText.h"

namespace tarnwick {

namespace {

// Text with the page language's escapes.
std::string plain(const std::string& text) {
    std::string result;
    for (const char character : text)
        result += character == '\\' ? "\\e" : std::string(1, character);
    return result;
}

std::string inFont(char font, const std::string& word) {
    std::string result = std::string("\\f") + font;
    for (const char character : word)
        result += character == '-' ? "\\-" : std::string(1, character);
    return result + "\\fR";
}

// Words to be typed in bold, words that stand for others, in capitals, in italics.
std::string usage(const std::string& synopsis) {
    const auto isOfWord = [](char character) { return isLetter(character) || character == '-'; };
    std::string result;
    for (auto at = synopsis.begin(); at != synopsis.end();) {
        const auto end = std::find_if_not(at, synopsis.end(), isOfWord);
        if (at == end)
            result += *at++;
        else
            result += inFont(isCapital(*at) ? 'I' : 'B', std::string(at, end));
        at = std::max(at, end);
    }
    return result;
}

std::string sentence(const std::string& text) {
    std::string result = plain(text) + ".";
    result.front() = static_cast<char>(std::toupper(static_cast<unsigned char>(result.front())));
    return result;
}

std::string entry(const std::string& label, const std::string& text) {
    return ".TP\n" + label + "\n" + text + "\n";
}

std::string withoutLastLineEnd(std::string text) {
    text.pop_back();
    return text;
}

// The words that neither the synopsis nor the list of items contains.
std::string furtherWords(const Command& command, const std::vector<std::string>& items) {
    std::vector<std::string> further;
    for (const std::string& word : command.words)
        if (command.synopsis.find(word) == std::string::npos &&
            std::ranges::find(items, word) == items.end())
            further.push_back(inFont('B', word));
    return further.empty() ? "" : "\nOne of " + joined(further, ", ") + ".";
}

// A word and what follows it.
std::string usage(const std::string& word, const std::string& synopsis) {
    return synopsis.empty() ? usage(word) : usage(word) + " " + usage(synopsis);
}

std::string commandEntries(const ItemCatalogue& catalogue) {
    const auto items = itemWords(catalogue);
    std::string text;
    for (const Command& command : commandTable(catalogue))
        text += entry(usage(command.name, command.synopsis),
                      sentence(command.purpose) + furtherWords(command, items) +
                          (command.reach != Reach::Looks ? "\nNeeds root." : ""));
    return text;
}

std::string itemEntries(const ItemCatalogue& catalogue) {
    std::string text;
    for (const BackupItem& item : catalogue) {
        std::vector<std::string> folders;
        for (const std::string& folder : item.sourcePaths)
            folders.push_back(inFont('I', folder));
        text += entry(inFont('B', kebabCase(item.key)), joined(folders, ",\n"));
    }
    return text;
}

// Which commands know the option, if not all do.
std::string commandsThatKnow(const Option& option, const std::vector<Command>& commands) {
    std::vector<std::string> names;
    for (const Command& command : commands)
        if (!option.isForEveryVerb && knowsOption(command, option))
            names.push_back(inFont('B', command.name));
    return names.empty() ? "" : "\nFor " + joined(names, ", ") + ".";
}

std::string optionEntries(const ItemCatalogue& catalogue) {
    const auto commands = commandTable(catalogue);
    std::string text;
    for (const Option& option : optionTable()) {
        const std::string word = usage(option.word, option.values);
        text += entry(option.shortWord.empty() ? word : usage(option.shortWord) + ", " + word,
                      sentence(option.purpose) + commandsThatKnow(option, commands));
    }
    return text;
}

std::string statusEntries() {
    std::string text;
    for (const auto& [status, meaning] : exitStatusTable())
        text += entry(inFont('B', status), sentence(meaning));
    return text;
}

// As the values are written.
std::string fieldEntries() {
    std::string text;
    for (const auto& [field, content] : jsonFieldTable())
        text += entry(inFont('B', field), plain(content) + ".");
    return text;
}

}  // namespace

Fragments manPageFragments(const ItemCatalogue& catalogue) {
    return {{"COMMANDS", withoutLastLineEnd(commandEntries(catalogue))},
            {"ITEMS", withoutLastLineEnd(itemEntries(catalogue))},
            {"OPTIONS", withoutLastLineEnd(optionEntries(catalogue))},
            {"EXIT_STATUS", withoutLastLineEnd(statusEntries())},
            {"JSON_FIELDS", withoutLastLineEnd(fieldEntries())}};
}

}  // namespace tarnwick
