#include "zip/ExtraFields.h"

#include <algorithm>
#include <limits>

namespace tarnwick {

namespace {

constexpr std::uint16_t timesId = 0x5455;  // "UT"
constexpr std::uint16_t ownerId = 0x7875;  // "ux"
// What other programs may have noted of an older version of the file, and believe more.
constexpr std::uint16_t foreignTimes[] = {0x000a, 0x5855, 0x7855};

void append(std::vector<std::uint8_t>& field, std::uint32_t number) {
    for (int shift = 0; shift < 32; shift += 8)
        field.push_back(static_cast<std::uint8_t>(number >> shift));
}

// Where a time has 32 bits, all of them are.
bool isInRange(std::int64_t time) {
    return time >= std::numeric_limits<std::int32_t>::min() &&
           time <= std::numeric_limits<std::uint32_t>::max();
}

ExtraField timesOf(const TreeEntry& entry) {
    constexpr std::uint8_t modificationAndAccess = 3;
    ExtraField field = {.id = timesId};
    if (!isInRange(entry.modified) || !isInRange(entry.accessed))
        return field;
    field.central = {modificationAndAccess};
    append(field.central, static_cast<std::uint32_t>(entry.modified));
    field.local = field.central;
    append(field.local, static_cast<std::uint32_t>(entry.accessed));
    return field;
}

ExtraField ownerOf(const TreeEntry& entry) {
    constexpr std::uint8_t version = 1;
    ExtraField field = {.id = ownerId, .local = {version}};
    for (const std::uint32_t id : {entry.user, entry.group}) {
        field.local.push_back(sizeof id);
        append(field.local, id);
    }
    field.central = field.local;
    return field;
}

std::time_t localTime(std::tm time) {
    time.tm_isdst = -1;
    const std::time_t result = std::mktime(&time);
    // Where times have 32 bits, they end before.
    return result == -1 ? std::numeric_limits<std::time_t>::max() - 1 : result;
}

}  // namespace

std::vector<ExtraField> extraFieldsOf(const TreeEntry& entry) {
    std::vector<ExtraField> fields = {timesOf(entry), ownerOf(entry)};
    for (const std::uint16_t id : foreignTimes)
        fields.push_back({.id = id});
    return fields;
}

std::time_t nearestArchiveTime(std::time_t time) {
    static const std::time_t first = localTime({.tm_mday = 1, .tm_mon = 0, .tm_year = 80});
    static const std::time_t last = localTime(
        {.tm_sec = 58, .tm_min = 59, .tm_hour = 23, .tm_mday = 31, .tm_mon = 11, .tm_year = 207});
    // Upwards, as the system's zip does.
    const std::time_t nearest = std::clamp(time, first, last);
    return nearest + nearest % 2;
}

}  // namespace tarnwick
