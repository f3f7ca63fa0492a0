#include "cli/Json.h"

#include <algorithm>

#include "core/TextLines.h"

namespace tarnwick {

namespace {

std::string escapedControl(unsigned char byte) {
    static constexpr std::string_view digits = "0123456789abcdef";
    return std::string("\\u00") + digits[byte >> 4U] + digits[byte & 15U];
}

std::string escaped(char character) {
    switch (character) {
        case '"':
            return "\\\"";
        case '\\':
            return "\\\\";
        case '\n':
            return "\\n";
        default:
            break;
    }
    const auto byte = static_cast<unsigned char>(character);
    return byte < 0x20 || byte == 0x7F ? escapedControl(byte) : std::string(1, character);
}

std::string asUtf8(const std::string& text) {
    std::string mended;
    for (std::size_t position = 0; position < text.size();) {
        const std::size_t length = characterLength(text, position);
        mended += length > 0 ? text.substr(position, length) : "\uFFFD";
        position += std::max<std::size_t>(length, 1);
    }
    return mended;
}

std::string quoted(const std::string& text) {
    std::string result;
    result += '"';
    for (const char character : asUtf8(text))
        result += escaped(character);
    result += '"';
    return result;
}

std::string asJson(const JsonValue& value) {
    if (const auto* number = std::get_if<std::int64_t>(&value))
        return std::to_string(*number);
    return quoted(std::get<std::string>(value));
}

}  // namespace

std::string jsonObject(const JsonFields& fields) {
    std::string object = "{";
    for (const auto& [name, value] : fields) {
        if (object.size() > 1)
            object += ',';
        object += quoted(name);
        object += ':';
        object += asJson(value);
    }
    object += '}';
    return object;
}

}  // namespace tarnwick
