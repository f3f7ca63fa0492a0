#include "platform/desktop/ShortcutItem.h"

#include <algorithm>

namespace tarnwick {

namespace {

constexpr std::size_t longestName = 64;

bool isPlain(char character) {
    return (character >= 'A' && character <= 'Z') || (character >= 'a' && character <= 'z') ||
           (character >= '0' && character <= '9') || character == '-';
}

}  // namespace

bool isActionName(std::string_view text) {
    return !text.empty() && text.size() <= longestName && std::ranges::all_of(text, isPlain);
}

}  // namespace tarnwick
