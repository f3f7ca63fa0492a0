#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <utility>
#include <variant>
#include <vector>

namespace tarnwick {

using JsonValue = std::variant<std::string, std::int64_t>;
using JsonFields = std::vector<std::pair<std::string, JsonValue>>;

// One object on one line. What is not valid UTF-8 in a text becomes U+FFFD, byte by byte.
std::string jsonObject(const JsonFields& fields);

}  // namespace tarnwick
