#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace tarnwick {

// The word that begins as typed, else the one that takes the fewest changes (a letter put in, left
// out or replaced, or two neighbours swapped); the first of several. There must be at least one
// word.
const std::string& nearestWord(std::string_view typed, const std::vector<std::string>& words);

}  // namespace tarnwick
