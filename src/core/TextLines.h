// Source lists as lines. A line is compared and kept as it stands: nothing is trimmed, sorted or
// made unique.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace tarnwick {

using Lines = std::vector<std::string_view>;

// Bytes of the valid UTF-8 character at the position; 0 where there is none. There are no overlong
// forms, surrogates or values past U+10FFFF.
std::size_t characterLength(std::string_view text, std::size_t position);

bool isValidUtf8(std::string_view text);

// Splits valid UTF-8 at each single newline character (U+000A to U+000D, U+0085, U+2028, U+2029),
// so that "\r\n" gives an empty line between and a last newline an empty last line. An empty text
// is one empty line, no text is no line. The lines point into the text, which must outlive them.
Lines splitLines(const std::optional<std::string>& text);

// Joins with one line feed between; none after the last line.
std::string joinLines(const Lines& lines);

// The lines that equal none of the others, in their order. Linear in both lists.
Lines linesWithout(const Lines& lines, const Lines& others);

}  // namespace tarnwick
