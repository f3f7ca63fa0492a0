#include "zip/PlainNames.h"

#include <unistd.h>

#include <cerrno>
#include <optional>
#include <string>

namespace tarnwick {

namespace {

// What the format calls the end of the central directory, with the form for large archives and its
// locator before it. Lengths and places in bytes.
constexpr std::size_t endLength = 22, largeEndLength = 56 + 20;
constexpr std::size_t directoryInEnd = 16, directoryInLargeEnd = 48;

// The header of an entry in the central directory: the fixed part, then name, extra fields,
// comment.
constexpr std::size_t headerLength = 46;
constexpr std::size_t flagsInHeader = 8, sizesInHeader = 20, lengthsInHeader = 28,
                      offsetInHeader = 42;
constexpr std::size_t flagsInLocalHeader = 6;

constexpr std::uint64_t isElsewhere = 0xffffffff;  // in the extra field for large files
constexpr std::uint64_t largeFileId = 1;
constexpr std::uint64_t utf8Flag = 0x0800;

std::uint64_t numberAt(std::string_view bytes, std::size_t place, std::size_t length) {
    std::uint64_t number = 0;
    while (length-- > 0)
        number = number << 8 | static_cast<std::uint8_t>(bytes.at(place + length));
    return number;
}

std::size_t lengthAt(std::string_view bytes, std::size_t place) {
    return static_cast<std::size_t>(numberAt(bytes, place, 2));
}

class Archive {
public:
    explicit Archive(int file) : file_(file) {}

    std::optional<std::string> read(std::uint64_t place, std::size_t length) const {
        std::string bytes(length, '\0');
        errno = EIO;
        const ssize_t count = ::pread(file_, bytes.data(), length, static_cast<off_t>(place));
        return count == static_cast<ssize_t>(length) ? std::optional(bytes) : std::nullopt;
    }

    bool clearUtf8Flag(std::uint64_t place) const {
        const auto bytes = read(place, 2);
        if (!bytes)
            return false;
        const std::uint64_t flags = numberAt(*bytes, 0, 2) & ~utf8Flag;
        const char cleared[] = {static_cast<char>(flags), static_cast<char>(flags >> 8)};
        return ::pwrite(file_, cleared, sizeof cleared, static_cast<off_t>(place)) ==
               sizeof cleared;
    }

private:
    const int file_;
};

// Where the local header of an entry is.
std::uint64_t localHeaderOf(std::string_view header, std::string_view extraFields) {
    const std::uint64_t offset = numberAt(header, offsetInHeader, 4);
    if (offset != isElsewhere)
        return offset;
    while (numberAt(extraFields, 0, 2) != largeFileId)
        extraFields.remove_prefix(4 + lengthAt(extraFields, 2));
    std::size_t place = 4;
    for (const std::size_t size : {sizesInHeader, sizesInHeader + 4})
        place += numberAt(header, size, 4) == isElsewhere ? 8 : 0;
    return numberAt(extraFields, place, 8);
}

std::optional<std::uint64_t> directoryOf(const Archive& archive, std::uint64_t end) {
    const auto bytes = archive.read(end, endLength);
    if (!bytes)
        return std::nullopt;
    const std::uint64_t directory = numberAt(*bytes, directoryInEnd, 4);
    if (directory != isElsewhere)
        return directory;
    const auto largeEnd = archive.read(end - largeEndLength, largeEndLength);
    return largeEnd ? std::optional(numberAt(*largeEnd, directoryInLargeEnd, 8)) : std::nullopt;
}

}  // namespace

bool declareNamesPlain(int file, std::uint64_t length, std::uint64_t commentLength,
                       const std::function<bool(std::string_view)>& accepts) {
    const Archive archive(file);
    const std::uint64_t end = length - commentLength - endLength;
    auto place = directoryOf(archive, end);
    while (place && *place + headerLength <= end) {
        const auto header = archive.read(*place, headerLength);
        if (!header || !header->starts_with("PK\1\2"))
            return header.has_value();
        const std::size_t nameLength = lengthAt(*header, lengthsInHeader);
        const std::size_t extraLength = lengthAt(*header, lengthsInHeader + 2);
        const auto texts = archive.read(*place + headerLength, nameLength + extraLength);
        if (!texts)
            return false;
        if ((numberAt(*header, flagsInHeader, 2) & utf8Flag) != 0 &&
            accepts(std::string_view(*texts).substr(0, nameLength)) &&
            !(archive.clearUtf8Flag(*place + flagsInHeader) &&
              archive.clearUtf8Flag(
                  localHeaderOf(*header, std::string_view(*texts).substr(nameLength)) +
                  flagsInLocalHeader)))
            return false;
        *place += headerLength + texts->size() + numberAt(*header, lengthsInHeader + 4, 2);
    }
    return place.has_value();
}

}  // namespace tarnwick
