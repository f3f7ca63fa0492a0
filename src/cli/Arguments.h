#pragma once

#include <optional>
#include <string>
#include <vector>

#include "core/ItemCatalogue.h"

namespace tarnwick {

// The parsed command line. Options may stand anywhere; "--" ends them.
struct Arguments {
    std::vector<std::string> words;  // the command and what follows it
    bool yes = false;
    bool dryRun = false;
    bool json = false;
    bool verbose = false;
    bool archivesOnly = false;
    bool noCheck = false;
    bool verify = false;
    bool help = false;
    bool version = false;
    // The answer to the offer after a restore: Offer::None is "nothing"; null asks.
    std::optional<Offer> then;
    std::vector<std::string> to;  // well-formed addresses
    // The options that were typed, by their long words.
    std::vector<std::string> options;
    // What is wrong with the options; the other fields are incomplete then.
    std::optional<std::string> fault;
};

// An option, for the parser, the help and the completions: it sets a flag, or takes a value.
struct Option {
    std::string word;
    std::string shortWord = {};
    std::string values = {};  // words between bars, or a placeholder in capitals
    std::string purpose;
    bool isForEveryVerb = false;
    bool Arguments::*flag = nullptr;
    void (*take)(Arguments& arguments, const std::string& value) = nullptr;
};
const std::vector<Option>& optionTable();

// Takes the arguments without the program's name.
Arguments parseArguments(const std::vector<std::string>& typed);

// "there is no NOUN "TYPED"", and "; did you mean "WORD" ?" if one of the words is near.
std::string unknownWord(const std::string& noun, const std::string& typed,
                        const std::vector<std::string>& words);

}  // namespace tarnwick
