#pragma once

#include <string>
#include <vector>

namespace tarnwick {

// One label of the help page: its name and its text.
struct HelpText {
    std::string label;
    std::string text;
};

// The nine texts in the order of the page: the introduction, then question and answer by turns. The
// slips of the pen and the blanks before "?" and "!" are the author's.
const std::vector<HelpText>& helpTexts();

}  // namespace tarnwick
