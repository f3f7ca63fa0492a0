#pragma once

#include <sys/types.h>

#include <cstdint>
#include <map>
#include <optional>
#include <string>

#include "core/FileManager.h"
#include "core/ItemCatalogue.h"

namespace tarnwick {

// A file system that may get full.
struct SpaceShortage {
    std::string path;  // a folder on it
    std::int64_t needed = 0;
    std::int64_t free = 0;
};

// How much more space a run takes at its worst, for items one after another. Archives are taken to
// be no smaller than the data, as pictures do not get smaller.
class SpaceNeeds {
public:
    // All paths are below the root.
    SpaceNeeds(const FileReader& files, std::string root);

    // The staging copies, and the new archives beside the old ones.
    void addSave(const BackupItem& item);
    // What is unpacked, and what is put in place beyond what is there.
    void addRestore(const BackupItem& item);

    // Null if it will do.
    std::optional<SpaceShortage> shortage() const;

private:
    struct Use {
        std::string path;
        std::int64_t now = 0;
        std::int64_t most = 0;
    };

    std::int64_t safeguardSizeIn(const std::string& path) const;
    void take(const std::string& path, std::int64_t bytes);

    const FileReader& files_;
    const std::string root_;
    std::map<dev_t, Use> uses_;
};

}  // namespace tarnwick
