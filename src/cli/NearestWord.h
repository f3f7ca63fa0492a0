#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace tarnwick {

// The first word that begins as typed; else the first with the smallest edit distance (insertion,
// deletion, substitution, transposition). There must be at least one word.
const std::string& nearestWord(std::string_view typed, const std::vector<std::string>& words);

}  // namespace tarnwick
