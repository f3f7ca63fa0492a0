#pragma once

#include <algorithm>
#include <iterator>
#include <optional>
#include <sstream>
#include <string>
#include <string_view>
#include <vector>

namespace tarnwick {

// A command line of the catalogue, taken apart: constant words between blanks, without quotes.
class LineWords {
public:
    explicit LineWords(const std::string& line) {
        std::istringstream stream(line);
        for (std::string word; stream >> word;)
            words_.push_back(word);
    }

    // Without its folder.
    std::string program() const { return words_.front().substr(words_.front().rfind('/') + 1); }
    const std::string& last() const { return words_.back(); }
    // The last word but one: what is copied.
    const std::string& operand() const { return words_[words_.size() - 2]; }
    // The word before an option.
    std::string operandOf(std::string_view option) const {
        const auto found = std::find(words_.begin(), words_.end(), option);
        return found == words_.begin() || found == words_.end() ? "" : *std::prev(found);
    }
    // The file after a redirection; null without that.
    std::optional<std::string> after(std::string_view redirection) const {
        for (std::size_t index = 0; index + 1 < words_.size(); ++index)
            if (words_[index] == redirection)
                return words_[index + 1];
        return std::nullopt;
    }
    // Whether it is several commands, joined by pipes.
    bool isPipeline() const { return after("|").has_value(); }

private:
    std::vector<std::string> words_;
};

}  // namespace tarnwick
