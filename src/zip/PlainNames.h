#pragma once

#include <cstdint>
#include <functional>
#include <string_view>

namespace tarnwick {

// libzip declares names that look like UTF-8 to be UTF-8, and `unzip` then replaces their letters
// where the locale is another one. This takes the declaration back in a finished archive, for the
// names that are accepted, so that they are unpacked byte for byte, as from the system's zip.
// `length` and `commentLength` are those of the archive. Returns false, with errno set, if the file
// cannot be read or written.
bool declareNamesPlain(int archive, std::uint64_t length, std::uint64_t commentLength,
                       const std::function<bool(std::string_view name)>& accepts);

}  // namespace tarnwick
