#include "cli/Arguments.h"

#include <map>

#include "cli/NearestWord.h"
#include "mail/MailMessage.h"

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

// Null if it is not an option.
const Option* optionOf(const std::string& word) {
    for (const Option& option : optionTable())
        if (word == option.word || (!word.empty() && word == option.shortWord))
            return &option;
    return nullptr;
}

void setAnswer(Arguments& arguments, const std::string& answer) {
    const auto found = answers.find(answer);
    if (found == answers.end())
        arguments.fault = unknownWord("answer", answer, answerWords());
    else
        arguments.then = found->second;
}

void addRecipient(Arguments& arguments, const std::string& address) {
    if (isWellFormedRecipient(address))
        arguments.to.push_back(address);
    else
        arguments.fault = "\"" + address + "\" is not a mail address";
}

void setFlag(Arguments& arguments, const Option& option, bool hasValue) {
    if (hasValue)
        arguments.fault = option.word + " takes no value";
    else
        arguments.*(option.flag) = true;
}

void takeValue(Arguments& arguments, const Option& option, const std::string& value) {
    if (value.empty())
        arguments.fault = option.word + " needs a value: " + option.values;
    else
        option.take(arguments, value);
}

// Takes an option, with a value from the word itself, after "=", or from the next word, unless that
// is an option too. Returns the number of words taken.
std::size_t takeOption(Arguments& arguments, const std::string& word, const std::string& next) {
    const std::size_t equals = word.find('=');
    const bool hasValue = equals != std::string::npos;
    const Option* option = optionOf(word.substr(0, equals));
    if (option == nullptr) {
        arguments.fault = unknownWord("option", word, optionWords());
        return 1;
    }
    arguments.options.push_back(option->word);
    if (option->take == nullptr)
        setFlag(arguments, *option, hasValue);
    else
        takeValue(arguments, *option,
                  hasValue ? word.substr(equals + 1) : (next.starts_with("-") ? "" : next));
    return option->take == nullptr || hasValue ? 1 : 2;
}

}  // namespace

const std::vector<Option>& optionTable() {
    static const std::vector<Option> options = {
        {.word = "--yes",
         .shortWord = "-y",
         .purpose = "answer confirmations with yes",
         .flag = &Arguments::yes},
        {.word = "--then",
         .values = "respring|reboot|nothing",
         .purpose = "answer the offer after a restore",
         .take = setAnswer},
        {.word = "--to",
         .values = "ADDRESS",
         .purpose = "mail to this address; may be repeated",
         .take = addRecipient},
        {.word = "--dry-run",
         .shortWord = "-n",
         .purpose = "print the command lines and file changes in order and do none of them",
         .flag = &Arguments::dryRun},
        {.word = "--json",
         .purpose = "print one object a line",
         .isForEveryVerb = true,
         .flag = &Arguments::json},
        {.word = "--verbose",
         .shortWord = "-v",
         .purpose = "show what the started commands print; of compare, each file",
         .flag = &Arguments::verbose},
        {.word = "--archives-only",
         .purpose = "check: test the archives, and look at nothing else",
         .flag = &Arguments::archivesOnly},
        {.word = "--no-check",
         .purpose = "export: do not test the archives first",
         .flag = &Arguments::noCheck},
        {.word = "--verify",
         .purpose = "export: check a copy that is there, on any machine",
         .flag = &Arguments::verify},
        {.word = "--help",
         .shortWord = "-h",
         .purpose = "print this help, or that of the command",
         .isForEveryVerb = true,
         .flag = &Arguments::help},
        {.word = "--version",
         .purpose = "print the version",
         .isForEveryVerb = true,
         .flag = &Arguments::version},
    };
    return options;
}

std::string unknownWord(const std::string& noun, const std::string& typed,
                        const std::vector<std::string>& words) {
    const std::string* nearest = nearestWord(typed, words);
    return "there is no " + noun + " \"" + typed + "\"" +
           (nearest == nullptr ? "" : "; did you mean \"" + *nearest + "\" ?");
}

Arguments parseArguments(const std::vector<std::string>& typed) {
    Arguments arguments;
    for (std::size_t index = 0; index < typed.size() && !arguments.fault;) {
        const std::string& word = typed[index];
        if (word == "--") {
            arguments.words.insert(arguments.words.end(),
                                   typed.begin() + static_cast<std::ptrdiff_t>(index) + 1,
                                   typed.end());
            return arguments;
        }
        if (word.starts_with("-") && word != "-") {
            const bool isLast = index + 1 == typed.size();
            index += takeOption(arguments, word, isLast ? std::string() : typed[index + 1]);
        } else {
            arguments.words.push_back(word);
            ++index;
        }
    }
    return arguments;
}

}  // namespace tarnwick
