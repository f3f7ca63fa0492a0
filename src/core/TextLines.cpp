#include "core/TextLines.h"

#include <algorithm>
#include <iterator>
#include <unordered_set>

#include "core/JoinedText.h"

namespace tarnwick {

namespace {

unsigned byteAt(std::string_view text, std::size_t position) {
    return position < text.size() ? static_cast<unsigned char>(text[position]) : 0U;
}

bool isContinuation(unsigned byte) {
    return (byte & 0xC0U) == 0x80U;
}

// What the first byte of a character implies: its length in bytes, and the range of the second one.
struct Lead {
    std::size_t length;
    unsigned lowest = 0x80;
    unsigned highest = 0xBF;
};

Lead leadOf(unsigned byte) {
    if (byte < 0x80)
        return {1};
    if (byte < 0xC2 || byte > 0xF4)
        return {0};
    if (byte < 0xE0)
        return {2};
    if (byte < 0xF0)
        return {3, byte == 0xE0 ? 0xA0U : 0x80U, byte == 0xED ? 0x9FU : 0xBFU};
    return {4, byte == 0xF0 ? 0x90U : 0x80U, byte == 0xF4 ? 0x8FU : 0xBFU};
}

// Length in bytes of the newline character at the position; 0 if it is another character.
std::size_t newlineLength(std::string_view text, std::size_t position) {
    const unsigned byte = byteAt(text, position);
    if (byte >= 0x0A && byte <= 0x0D)
        return 1;
    if (byte == 0xC2 && byteAt(text, position + 1) == 0x85)
        return 2;
    const std::string_view three = text.substr(position, 3);
    return three == "\u2028" || three == "\u2029" ? 3 : 0;
}

}  // namespace

std::size_t characterLength(std::string_view text, std::size_t position) {
    const Lead lead = leadOf(byteAt(text, position));
    if (lead.length < 2)
        return lead.length;
    const unsigned second = byteAt(text, position + 1);
    if (second < lead.lowest || second > lead.highest)
        return 0;
    for (std::size_t offset = 2; offset < lead.length; ++offset)
        if (!isContinuation(byteAt(text, position + offset)))
            return 0;
    return lead.length;
}

bool isValidUtf8(std::string_view text) {
    for (std::size_t position = 0; position < text.size();) {
        const std::size_t length = characterLength(text, position);
        if (length == 0)
            return false;
        position += length;
    }
    return true;
}

Lines splitLines(const std::optional<std::string>& text) {
    Lines lines;
    if (!text)
        return lines;
    const std::string_view whole = *text;
    std::size_t start = 0;
    for (std::size_t position = 0; position < whole.size();) {
        const std::size_t newline = newlineLength(whole, position);
        if (newline == 0) {
            ++position;
            continue;
        }
        lines.push_back(whole.substr(start, position - start));
        position += newline;
        start = position;
    }
    lines.push_back(whole.substr(start));
    return lines;
}

std::string joinLines(const Lines& lines) {
    return joined(lines, "\n");
}

Lines linesWithout(const Lines& lines, const Lines& others) {
    const std::unordered_set<std::string_view> known(others.begin(), others.end());
    Lines kept;
    std::copy_if(lines.begin(), lines.end(), std::back_inserter(kept),
                 [&known](std::string_view line) { return !known.contains(line); });
    return kept;
}

}  // namespace tarnwick
