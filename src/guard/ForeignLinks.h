#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace tarnwick {

// The link in the path, if any, that another user has put there and that leads to what is not that
// user's: whoever writes there would do so in that user's place. The path is below the root.
std::optional<std::string> foreignLinkIn(const std::string& root, std::string_view path);

// What to say about it when nothing is written there.
std::string textOfForeignLink(const std::string& link);

}  // namespace tarnwick
