#pragma once

#include <cstdint>
#include <ctime>
#include <optional>
#include <string>
#include <variant>
#include <vector>

namespace tarnwick {

// A file of a copy.
struct CopiedFile {
    std::string name;        // below the safeguard folder
    std::uint64_t size = 0;  // bytes
    std::time_t modified = 0;
    std::string digest;  // SHA-256, in hexadecimal digits
};

// What a copy consists of: its first entry.
struct Manifest {
    std::string made;     // the date, ISO 8601
    std::string device;   // the model
    std::string system;   // name and release
    std::string program;  // Tarnwick's version
    std::vector<CopiedFile> files;

    std::uint64_t size() const;  // bytes of all files
};

// A manifest of this device and moment, without files.
Manifest newManifest(const std::string& program);

// As JSON, protected by a digest of its own.
std::string textOf(const Manifest& manifest);

// The manifest, or what is wrong with it. It is accepted only if each of its files has one of the
// names, and none has it twice.
std::variant<Manifest, std::string> manifestIn(const std::string& text,
                                               const std::vector<std::string>& names);

// The folder that holds all entries of a copy, and the name of the first one.
inline constexpr const char* copyFolder = "Tarnwick/";
inline constexpr const char* manifestName = "Tarnwick/manifest.json";
inline constexpr std::size_t longestManifest = 64 << 10;  // bytes

}  // namespace tarnwick
