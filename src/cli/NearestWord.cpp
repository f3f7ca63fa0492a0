#include "cli/NearestWord.h"

#include <algorithm>
#include <cstddef>

namespace tarnwick {

namespace {

std::size_t changesBetween(std::string_view typed, std::string_view word) {
    // changes[row][column]: from the first `row` letters typed to the first `column` letters of the
    // word.
    std::vector<std::vector<std::size_t>> changes(typed.size() + 1,
                                                  std::vector<std::size_t>(word.size() + 1));
    for (std::size_t row = 0; row <= typed.size(); ++row) {
        for (std::size_t column = 0; column <= word.size(); ++column) {
            std::size_t& cell = changes[row][column];
            if (row == 0 || column == 0) {
                cell = row + column;
                continue;
            }
            const bool same = typed[row - 1] == word[column - 1];
            cell = std::min({changes[row - 1][column] + 1, changes[row][column - 1] + 1,
                             changes[row - 1][column - 1] + (same ? 0 : 1)});
            if (row > 1 && column > 1 && typed[row - 1] == word[column - 2] &&
                typed[row - 2] == word[column - 1])
                cell = std::min(cell, changes[row - 2][column - 2] + 1);
        }
    }
    return changes.back().back();
}

}  // namespace

const std::string* nearestWord(std::string_view typed, const std::vector<std::string>& words) {
    constexpr std::size_t mostChanges = 2;
    const std::string* nearest = nullptr;
    std::size_t fewest = mostChanges + 1;
    for (const std::string& word : words) {
        // One that is much longer is not near, and would only make the comparison slow.
        if (typed.size() > word.size() + mostChanges)
            continue;
        const std::size_t changes = changesBetween(typed, word);
        if (changes >= fewest || 2 * changes >= word.size())
            continue;
        nearest = &word;
        fewest = changes;
    }
    return nearest;
}

}  // namespace tarnwick
