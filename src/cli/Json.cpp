#include "cli/Json.h"

#include <nlohmann/json.hpp>

namespace tarnwick {

std::string jsonObject(const JsonFields& fields) {
    using Json = nlohmann::ordered_json;
    Json object = Json::object();
    for (const auto& [name, value] : fields)
        std::visit([&, &key = name](const auto& content) { object[key] = content; }, value);
    constexpr int onOneLine = -1;
    return object.dump(onOneLine, ' ', false, Json::error_handler_t::replace);
}

}  // namespace tarnwick
