#pragma once

#include <optional>
#include <string>

namespace tarnwick {

// The name that a machine is sold under; the name of its family if only that is known; otherwise
// null.
std::optional<std::string> platformTypeOf(const std::string& machine);

}  // namespace tarnwick
