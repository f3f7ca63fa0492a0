// Source lists as lines, which are compared and kept as they are: nothing is trimmed, sorted or
// deduplicated.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace tarnwick {

using Lines = std::vector<std::string_view>;

// Length in bytes of the UTF-8 character at the position; 0 if it is not valid. Overlong forms,
// surrogates and values above U+10FFFF are not.
std::size_t characterLength(std::string_view text, std::size_t position);

bool isValidUtf8(std::string_view text);

// Splits valid UTF-8 at each single newline character (U+000A to U+000D, U+0085, U+2028, U+2029),
// so "\r\n" yields an empty line between and a trailing newline an empty last line. An empty text
// is one empty line; null has no lines. The lines point into the text, which must outlive them.
Lines splitLines(const std::optional<std::string>& text);

// With a line feed between the lines and none after the last one.
std::string joinLines(const Lines& lines);

// The lines that are not among the others, in their order. Takes linear time.
Lines linesWithout(const Lines& lines, const Lines& others);

}  // namespace tarnwick
