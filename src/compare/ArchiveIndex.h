#pragma once

#include <cstdint>
#include <string>
#include <unordered_map>
#include <variant>

namespace tarnwick {

// What an archive tells of an entry. The name of a folder ends with a slash.
struct ArchivedFile {
    std::uint64_t size = 0;  // bytes
    std::uint32_t crc = 0;
};

// The entries of an archive, by their names. Folders that only the names of others mention are
// entries too.
using ArchiveIndex = std::unordered_map<std::string, ArchivedFile>;

// Why there is no index, as an error number: ENOENT without an archive; EILSEQ if it is damaged.
using IndexError = int;

std::variant<ArchiveIndex, IndexError> indexOf(const std::string& archive);

}  // namespace tarnwick
