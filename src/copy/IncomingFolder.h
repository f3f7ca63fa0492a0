#pragma once

#include <list>
#include <optional>
#include <string>

#include "copy/CopyReader.h"
#include "core/Descriptor.h"

namespace tarnwick {

// Outside of every folder that a save takes, and on the same file system as the safeguard folder.
inline constexpr const char* incomingFolder = "/var/mobile/Library/Tarnwick.unfinished";
inline constexpr const char* previousFolder = "/var/mobile/Library/Tarnwick.previous";

// Collects the files of a copy beside the safeguard folder, which stays as it is until all of them
// are there.
class IncomingFolder : public CopySink {
public:
    // All paths are below the root.
    explicit IncomingFolder(std::string root = {});
    // Removes what was not put in place.
    ~IncomingFolder() override;

    Fault begin(const Manifest& manifest) override;
    Fault open(const CopiedFile& file) override;
    Fault write(std::string_view data) override;
    Fault close() override;

    // Puts everything on the disk and makes it the safeguard folder, in one step. What stood there
    // is the previous folder from then on, in place of an older one. Before and after that step the
    // old or the new folder is whole.
    Fault putInPlace();

private:
    Fault makeFolders();
    Fault makeRoomForPrevious() const;
    bool swap() const;
    std::string placed(std::string_view path) const { return root_ + std::string(path); }
    Fault failure(const std::string& what) const;

    const std::string root_;
    CopiedFile current_;
    std::optional<Descriptor> folder_;
    std::optional<Descriptor> file_;
};

}  // namespace tarnwick
