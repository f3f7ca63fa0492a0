#include <algorithm>

#include "cli/CommandTable.h"
#include "cli/documents/Fragments.h"
#include "core/Characters.h"
#include "core/JoinedText.h"

namespace tarnwick {

namespace {

using Words = std::vector<std::string>;

// One word in bash, zsh and fish.
std::string quoted(const std::string& text) {
    std::string result = "'";
    for (const char character : text)
        result += character == '\'' ? "'\\''" : std::string(1, character);
    return result + "'";
}

// "[KEY]=VALUE", as the tables of bash and zsh are written.
std::string cell(const std::string& key, const std::string& value) {
    return "[" + key + "]=" + quoted(value);
}

// The possible values of an option; empty if any will do.
Words valuesOf(const Option& option) {
    Words values;
    const bool isFree = !option.values.empty() && isCapital(option.values.front());
    for (std::size_t start = 0; !isFree && start < option.values.size();) {
        const std::size_t end = std::min(option.values.find('|', start), option.values.size());
        values.push_back(option.values.substr(start, end - start));
        start = end + 1;
    }
    return values;
}

bool takesValue(const Option& option) {
    return option.take != nullptr;
}

// How many words may follow; each makes sense once only.
std::string most(const Command& command) {
    return std::to_string(std::min(command.mostWords, command.words.size()));
}

// For zsh's _arguments.
std::string zshOption(const Option& option) {
    const std::string purpose = "[" + option.purpose + "]";
    if (takesValue(option))
        return quoted("*" + option.word + "=" + purpose + ":" + option.word.substr(2) + ":(" +
                      joined(valuesOf(option), " ") + ")");
    if (option.shortWord.empty())
        return quoted(option.word + purpose);
    return quoted("(" + option.shortWord + " " + option.word + ")" + option.shortWord + purpose) +
           " " + quoted("(" + option.shortWord + " " + option.word + ")" + option.word + purpose);
}

// The commands that know an option, if not all do.
Words knownTo(const Option& option, const std::vector<Command>& commands) {
    Words names;
    for (const Command& command : commands)
        if (!option.isForEveryVerb && knowsOption(command, option))
            names.push_back(command.name);
    return names;
}

// The words of the options that a command knows.
Words optionsOf(const Command& command) {
    Words words;
    for (const Option& option : optionTable()) {
        if (!knowsOption(command, option))
            continue;
        if (!option.shortWord.empty())
            words.push_back(option.shortWord);
        words.push_back(option.word);
    }
    return words;
}

std::string fishOption(const Option& option, const std::vector<Command>& commands) {
    const Words knowing = knownTo(option, commands);
    const std::string condition =
        knowing.empty() ? "" : " -n '__tarnwick_knows " + joined(knowing, " ") + "'";
    const std::string letter = option.shortWord.empty() ? "" : " -s " + option.shortWord.substr(1);
    const std::string values =
        takesValue(option) ? " -x -a " + quoted(joined(valuesOf(option), " ")) : "";
    return "complete -c tarnwick" + condition + " -l " + option.word.substr(2) + letter + values +
           " -d " + quoted(option.purpose);
}

std::string fishCommand(const Command& command) {
    return "complete -c tarnwick -n 'test (count (__tarnwick_words)) -eq 0' -a " + command.name +
           " -d " + quoted(command.purpose);
}

std::string fishWords(const Command& command) {
    return "complete -c tarnwick -n '__tarnwick_takes_word " + command.name + " " + most(command) +
           "' -a " + quoted("(__tarnwick_rest " + joined(command.words, " ") + ")");
}

std::string fishFile(const Command& command) {
    return "complete -c tarnwick -n '__tarnwick_takes_word " + command.name + " " +
           std::to_string(command.mostWords) + "' -F";
}

void addCommands(Fragments& fragments, const ItemCatalogue& catalogue) {
    Words names, words, counts, options, described, fish, ofFiles;
    for (const Command& command : commandTable(catalogue)) {
        names.push_back(command.name);
        options.push_back(cell(command.name, joined(optionsOf(command), " ")));
        described.push_back(quoted(command.name + ":" + command.purpose));
        fish.push_back(fishCommand(command));
        if (command.takesFile) {
            ofFiles.push_back(command.name);
            fish.push_back(fishFile(command));
        }
        if (command.words.empty())
            continue;
        words.push_back(cell(command.name, joined(command.words, " ")));
        counts.push_back(cell(command.name, most(command)));
        fish.push_back(fishWords(command));
    }
    fragments["COMMAND_NAMES"] = joined(names, " ");
    fragments["FILE_COMMANDS"] = joined(ofFiles, " ");
    fragments["WORDS"] = joined(words, "\n        ");
    fragments["MOST_WORDS"] = joined(counts, " ");
    fragments["KNOWN_OPTIONS"] = joined(options, "\n        ");
    fragments["ZSH_COMMANDS"] = joined(described, "\n        ");
    fragments["FISH_COMMANDS"] = joined(fish, "\n");
}

void addOptions(Fragments& fragments, const std::vector<Command>& commands) {
    Words names, withValue, values, zsh, fish;
    for (const Option& option : optionTable()) {
        if (!option.shortWord.empty())
            names.push_back(option.shortWord);
        names.push_back(option.word);
        zsh.push_back(zshOption(option));
        fish.push_back(fishOption(option, commands));
        if (!takesValue(option))
            continue;
        withValue.push_back(option.word);
        values.push_back(cell(option.word, joined(valuesOf(option), " ")));
    }
    fragments["OPTION_NAMES"] = joined(names, " ");
    fragments["OPTIONS_WITH_VALUE"] = joined(withValue, " ");
    fragments["OPTION_VALUES"] = joined(values, " ");
    fragments["ZSH_OPTIONS"] = joined(zsh, "\n        ");
    fragments["FISH_OPTIONS"] = joined(fish, "\n");
}

}  // namespace

Fragments completionFragments(const ItemCatalogue& catalogue) {
    Fragments fragments;
    addCommands(fragments, catalogue);
    addOptions(fragments, commandTable(catalogue));
    return fragments;
}

}  // namespace tarnwick
