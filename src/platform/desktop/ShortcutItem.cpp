#include "platform/desktop/ShortcutItem.h"

#include "core/Characters.h"

namespace tarnwick {

namespace {

constexpr std::size_t longestName = 64;

}  // namespace

bool isActionName(std::string_view text) {
    return text.size() <= longestName && consistsOf(text, "-");
}

}  // namespace tarnwick
