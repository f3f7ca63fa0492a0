#pragma once

#include <string>
#include <string_view>

namespace tarnwick {

// One character of UTF-8 that a terminal must not see.
bool isControl(std::string_view character);

// The name of a file. If it has control characters or bytes that are not UTF-8, it stands in double
// quotes, with escapes as in C.
std::string quotedName(std::string_view name);

}  // namespace tarnwick
