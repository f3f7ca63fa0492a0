#pragma once

#include <string_view>

namespace tarnwick {

// Writes the whole text to the descriptor, waiting for a slow reader. Returns false, with errno
// set, if only a part of it could be written.
bool writeAll(int descriptor, std::string_view text);

}  // namespace tarnwick
