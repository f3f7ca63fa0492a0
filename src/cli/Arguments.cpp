#include "cli/Arguments.h"

#include <map>

#include "cli/NearestWord.h"

namespace tarnwick {

namespace {

const std::map<std::string, bool Arguments::*> flags = {
    {"--yes", &Arguments::yes},         {"--dry-run", &Arguments::dryRun},
    {"--json", &Arguments::json},       {"--verbose", &Arguments::verbose},
    {"--version", &Arguments::version}, {"--help", &Arguments::help},
    {"-h", &Arguments::help},
};

const std::map<std::string, Offer> answers = {
    {"respring", Offer::Respring}, {"reboot", Offer::Reboot}, {"nothing", Offer::None}};

template <class Map>
std::vector<std::string> keysOf(const Map& map) {
    std::vector<std::string> keys;
    for (const auto& [key, value] : map)
        keys.push_back(key);
    return keys;
}

std::string unknownOption(const std::string& typed) {
    std::vector<std::string> options = keysOf(flags);
    options.emplace_back("--then");
    return unknownWord("option", typed, options);
}

void setAnswer(Arguments& arguments, const std::string& answer) {
    const auto found = answers.find(answer);
    if (found == answers.end())
        arguments.fault = unknownWord("answer", answer, keysOf(answers));
    else
        arguments.then = found->second;
}

}  // namespace

const std::vector<OptionHelp>& optionHelp() {
    static const std::vector<OptionHelp> options = {
        {"--yes", "answer confirmations with yes"},
        {"--then respring|reboot|nothing", "answer the offer after a restore"},
        {"--dry-run", "print the command lines and file changes in order and do none of them"},
        {"--json", "print one object a line"},
        {"--verbose", "show what the started commands print"},
        {"-h, --help", "print this help"},
        {"--version", "print the version"},
    };
    return options;
}

std::string unknownWord(const std::string& noun, const std::string& typed,
                        const std::vector<std::string>& words) {
    return "there is no " + noun + " \"" + typed + "\"; did you mean \"" +
           nearestWord(typed, words) + "\" ?";
}

Arguments parseArguments(const std::vector<std::string>& typed) {
    Arguments arguments;
    const std::string thenIs = "--then=";
    for (std::size_t index = 0; index < typed.size() && !arguments.fault; ++index) {
        const std::string& word = typed[index];
        if (const auto flag = flags.find(word); flag != flags.end()) {
            arguments.*flag->second = true;
        } else if (word == "--then") {
            setAnswer(arguments, index + 1 < typed.size() ? typed[++index] : "");
        } else if (word.starts_with(thenIs)) {
            setAnswer(arguments, word.substr(thenIs.size()));
        } else if (word == "--") {
            arguments.words.insert(arguments.words.end(),
                                   typed.begin() + static_cast<std::ptrdiff_t>(index) + 1,
                                   typed.end());
            return arguments;
        } else if (word.starts_with("-")) {
            arguments.fault = unknownOption(word);
        } else {
            arguments.words.push_back(word);
        }
    }
    return arguments;
}

}  // namespace tarnwick
