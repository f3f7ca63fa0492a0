#pragma once

#include <optional>
#include <string>

namespace tarnwick {

// The name that a machine identifier is sold under: exact for those known, otherwise its family;
// none if it belongs to no family.
std::optional<std::string> platformTypeOf(const std::string& machine);

}  // namespace tarnwick
