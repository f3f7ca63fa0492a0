#pragma once

#include <string_view>

namespace tarnwick {

// Writes the text to the open file; false, with errno set, if only a part of it could be written.
bool writeAll(int file, std::string_view text);

}  // namespace tarnwick
