#pragma once

#include <cstdint>
#include <string>
#include <utility>
#include <variant>
#include <vector>

namespace tarnwick {

using JsonValue = std::variant<std::string, std::int64_t, std::vector<std::string>>;
using JsonFields = std::vector<std::pair<std::string, JsonValue>>;

// One object on one line. Invalid UTF-8 becomes U+FFFD.
std::string jsonObject(const JsonFields& fields);

}  // namespace tarnwick
