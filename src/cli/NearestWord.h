#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace tarnwick {

// The first of the words that are nearest to what was typed, as far as that is near: at most two
// edits away (insertion, deletion, substitution, transposition), and fewer than half its letters.
// Null if there is none.
const std::string* nearestWord(std::string_view typed, const std::vector<std::string>& words);

}  // namespace tarnwick
