#include "cli/QuotedName.h"

#include <algorithm>

#include "core/TextLines.h"

namespace tarnwick {

namespace {

std::string octal(char byte) {
    const auto value = static_cast<unsigned char>(byte);
    std::string digits = "\\";
    for (const int shift : {6, 3, 0})
        digits += static_cast<char>('0' + ((value >> shift) & 7));
    return digits;
}

std::string escaped(std::string_view character) {
    if (character == "\n")
        return "\\n";
    if (character == "\t")
        return "\\t";
    std::string text;
    for (const char byte : character)
        text += octal(byte);
    return text;
}

bool needsBackslash(std::string_view character) {
    return character == "\"" || character == "\\";
}

}  // namespace

bool isControl(std::string_view character) {
    if (character.size() == 1)
        return static_cast<unsigned char>(character[0]) < ' ' || character[0] == 0x7F;
    return character.size() == 2 && character[0] == '\xC2' &&
           static_cast<unsigned char>(character[1]) < 0xA0;
}

std::string quotedName(std::string_view name) {
    std::string quoted = "\"";
    bool isPlain = true;
    for (std::size_t position = 0; position < name.size();) {
        const std::size_t length = std::max<std::size_t>(characterLength(name, position), 1);
        const std::string_view character = name.substr(position, length);
        const bool isShown = characterLength(name, position) > 0 && !isControl(character);
        isPlain = isPlain && isShown;
        if (isShown)
            quoted += (needsBackslash(character) ? "\\" : "") + std::string(character);
        else
            quoted += escaped(character);
        position += length;
    }
    return isPlain ? std::string(name) : quoted + "\"";
}

}  // namespace tarnwick
