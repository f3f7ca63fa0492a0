#include "cli/Arguments.h"

#include <map>

#include "cli/NearestWord.h"

namespace tarnwick {

namespace {

const std::map<std::string, Offer> answers = {
    {"respring", Offer::Respring}, {"reboot", Offer::Reboot}, {"nothing", Offer::None}};

std::vector<std::string> answerWords() {
    std::vector<std::string> words;
    for (const auto& [word, offer] : answers)
        words.push_back(word);
    return words;
}

std::vector<std::string> optionWords() {
    std::vector<std::string> words;
    for (const Option& option : optionTable())
        words.push_back(option.word);
    return words;
}

bool Arguments::*flagOf(const std::string& word) {
    for (const Option& option : optionTable())
        if (word == option.word || (!word.empty() && word == option.shortWord))
            return option.flag;
    return nullptr;
}

void setAnswer(Arguments& arguments, const std::string& answer) {
    const auto found = answers.find(answer);
    if (found == answers.end())
        arguments.fault = unknownWord("answer", answer, answerWords());
    else
        arguments.then = found->second;
}

}  // namespace

const std::vector<Option>& optionTable() {
    static const std::vector<Option> options = {
        {"--yes", "-y", "", "answer confirmations with yes", &Arguments::yes},
        {"--then", "", "respring|reboot|nothing", "answer the offer after a restore", nullptr},
        {"--dry-run", "-n", "",
         "print the command lines and file changes in order and do none of them",
         &Arguments::dryRun},
        {"--json", "", "", "print one object a line", &Arguments::json},
        {"--verbose", "-v", "", "show what the started commands print", &Arguments::verbose},
        {"--help", "-h", "", "print this help", &Arguments::help},
        {"--version", "", "", "print the version", &Arguments::version},
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
        if (bool Arguments::*flag = flagOf(word)) {
            arguments.*flag = true;
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
            arguments.fault = unknownWord("option", word, optionWords());
        } else {
            arguments.words.push_back(word);
        }
    }
    return arguments;
}

}  // namespace tarnwick
