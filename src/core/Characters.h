// Plain ASCII, whatever the locale says.
#pragma once

#include <algorithm>
#include <string>
#include <string_view>

namespace tarnwick {

constexpr bool isCapital(char character) {
    return character >= 'A' && character <= 'Z';
}

constexpr bool isLetter(char character) {
    return isCapital(character) || (character >= 'a' && character <= 'z');
}

constexpr bool isDigit(char character) {
    return character >= '0' && character <= '9';
}

// Leaves everything but capitals as it is.
constexpr char lowerCase(char character) {
    return isCapital(character) ? static_cast<char>(character - 'A' + 'a') : character;
}

// Letters, digits and the given marks; at least one of them.
constexpr bool consistsOf(std::string_view text, std::string_view marks) {
    return !text.empty() && std::ranges::all_of(text, [marks](char character) {
        return isLetter(character) || isDigit(character) ||
               marks.find(character) != std::string_view::npos;
    });
}

// "TweaksPrefs" with a hyphen between is "tweaks-prefs".
inline std::string wordsOfCamelCase(std::string_view name, char between) {
    std::string words;
    for (const char character : name) {
        if (isCapital(character) && !words.empty())
            words += between;
        words += lowerCase(character);
    }
    return words;
}

}  // namespace tarnwick
