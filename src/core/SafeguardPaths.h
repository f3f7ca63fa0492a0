// The fixed paths on the device, which the user cannot change.
#pragma once

#include <array>
#include <string>
#include <string_view>

namespace tarnwick::paths {

inline constexpr std::string_view safeguardRoot = "/var/mobile/Library/Preferences/Tarnwick";
inline constexpr std::string_view sourcesFolder =
    "/var/mobile/Library/Preferences/Tarnwick/CydiaSources";
inline constexpr std::string_view packagesFolder =
    "/var/mobile/Library/Preferences/Tarnwick/CydiaPackages";
inline constexpr std::string_view archiveFolder =
    "/var/mobile/Library/Preferences/Tarnwick/TarnwickLibrary";

inline constexpr std::string_view savedSourcesList =
    "/var/mobile/Library/Preferences/Tarnwick/CydiaSources/sources.list";
inline constexpr std::string_view savedCydiaList =
    "/var/mobile/Library/Preferences/Tarnwick/CydiaSources/cydia.list";
inline constexpr std::string_view savedPackages =
    "/var/mobile/Library/Preferences/Tarnwick/CydiaPackages/installed-packages.txt";

// Cydia's cache of its sources; it is there once Cydia has run.
inline constexpr std::string_view cydiaCacheList =
    "/var/mobile/Library/Caches/com.saurik.Cydia/sources.list";
// The list that a restore of the sources writes.
inline constexpr std::string_view ownAptList = "/etc/apt/sources.list.d/TWKSources.list";
inline constexpr std::string_view cydiaAptList = "/etc/apt/sources.list.d/cydia.list";

// What dpkg knows of each package.
inline constexpr std::string_view packageStates = "/var/lib/dpkg/status";

// Scratch space: staging copies that may not lie in the safeguard folder, unpacked archives.
inline constexpr std::string_view scratchFolder = "/var/tmp/";
// How all paths in an archive begin, and what they unpack to.
inline constexpr std::string_view archivedTree = "var/";
inline constexpr std::string_view unpackedTree = "/var/tmp/var";

// The partition whose size and free space are shown.
inline constexpr std::string_view userPartition = "/private/var";

// In the order in which they are tested and made.
inline constexpr std::array<std::string_view, 4> safeguardFolders = {safeguardRoot, sourcesFolder,
                                                                     packagesFolder, archiveFolder};

// The last component of a path.
inline std::string nameOf(std::string_view path) {
    return std::string(path.substr(path.rfind('/') + 1));
}

// What comes before it and its slash.
inline std::string folderOf(std::string_view path) {
    return std::string(path.substr(0, path.rfind('/')));
}

}  // namespace tarnwick::paths
