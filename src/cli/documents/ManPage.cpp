#include <algorithm>
#include <cctype>

#include "cli/CommandTable.h"
#include "cli/Words.h"
#include "cli/documents/Fragments.h"

namespace tarnwick {

namespace {

bool isLetter(char character) {
    return std::isalpha(static_cast<unsigned char>(character)) != 0;
}

bool isCapital(char character) {
    return std::isupper(static_cast<unsigned char>(character)) != 0;
}

// Text as it stands, for the page's language.
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

// The words that neither the synopsis nor the list of the items names.
std::string furtherWords(const Command& command, const std::vector<std::string>& items) {
    std::string text;
    for (const std::string& word : command.words) {
        const bool isNamed = command.synopsis.find(word) != std::string::npos ||
                             std::find(items.begin(), items.end(), word) != items.end();
        if (!isNamed)
            text += (text.empty() ? "\nOne of " : ", ") + inFont('B', word);
    }
    return text.empty() ? "" : text + ".";
}

// What is typed first, and what follows it, if anything does.
std::string usage(const std::string& word, const std::string& synopsis) {
    return synopsis.empty() ? usage(word) : usage(word) + " " + usage(synopsis);
}

std::string commandEntries(const ItemCatalogue& catalogue) {
    const auto items = itemWords(catalogue);
    std::string text;
    for (const Command& command : commandTable(catalogue))
        text += entry(usage(command.name, command.synopsis),
                      sentence(command.purpose) + furtherWords(command, items) +
                          (command.reach == Reach::Changes ? "\nNeeds root." : ""));
    return text;
}

std::string itemEntries(const ItemCatalogue& catalogue) {
    std::string text;
    for (const BackupItem& item : catalogue) {
        std::string folders;
        for (const std::string& folder : item.sourcePaths) {
            if (!folders.empty())
                folders += ",\n";
            folders += inFont('I', folder);
        }
        text += entry(inFont('B', kebabCase(item.key)), folders);
    }
    return text;
}

std::string optionEntries() {
    std::string text;
    for (const Option& option : optionTable()) {
        const std::string word = usage(option.word, option.values);
        text += entry(option.shortWord.empty() ? word : usage(option.shortWord) + ", " + word,
                      sentence(option.purpose));
    }
    return text;
}

std::string statusEntries() {
    std::string text;
    for (const auto& [status, meaning] : exitStatusTable())
        text += entry(inFont('B', status), sentence(meaning));
    return text;
}

}  // namespace

Fragments manPageFragments(const ItemCatalogue& catalogue) {
    return {{"COMMANDS", withoutLastLineEnd(commandEntries(catalogue))},
            {"ITEMS", withoutLastLineEnd(itemEntries(catalogue))},
            {"OPTIONS", withoutLastLineEnd(optionEntries())},
            {"EXIT_STATUS", withoutLastLineEnd(statusEntries())}};
}

}  // namespace tarnwick
