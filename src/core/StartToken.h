#pragma once

#include <string_view>

#include "core/Characters.h"

namespace tarnwick {

// What a desktop hands to a program that it starts, so that its window may come to the front.
constexpr bool isStartToken(std::string_view text) {
    constexpr std::size_t longestToken = 256;  // bytes; real ones are far shorter
    return text.size() <= longestToken && consistsOf(text, "._:/+=@ -");
}

}  // namespace tarnwick
