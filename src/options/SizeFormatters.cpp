#include "options/SizeFormatters.h"

#include <charconv>
#include <initializer_list>

namespace tarnwick {

namespace {

struct Unit {
    double bytes;
    const char* word;
};

constexpr Unit gigabyte = {1073741824.0, " GB"};
constexpr Unit megabyte = {1048576.0, " MB"};
constexpr Unit kilobyte = {1024.0, " KB"};

// Two decimals and a point, whatever the locale says: the C library's own formatting would ask it.
std::string withTwoDecimals(double value) {
    char digits[400];
    const auto end =
        std::to_chars(digits, digits + sizeof digits, value, std::chars_format::fixed, 2);
    return std::string(digits, end.ptr);
}

std::string formatted(double bytes, std::initializer_list<Unit> units, const char* bottomWord) {
    for (const Unit& unit : units)
        if (bytes / unit.bytes >= 1.0)
            return withTwoDecimals(bytes / unit.bytes) + unit.word;
    return withTwoDecimals(bytes) + bottomWord;
}

}  // namespace

std::string memoryFormatter(std::int64_t bytes) {
    return formatted(static_cast<double>(bytes), {gigabyte, megabyte}, " bytes");
}

std::string memoryFormatterDouble(double bytes) {
    return formatted(bytes, {gigabyte, megabyte, kilobyte}, " B");
}

}  // namespace tarnwick
