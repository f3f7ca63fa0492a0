#pragma once

#include <functional>
#include <string>

#include "copy/Manifest.h"
#include "core/Descriptor.h"

namespace tarnwick {

// A file of the safeguard folder, held open while it is copied: whatever takes its name in the
// meantime, the copy is of this one.
class OutgoingFile {
public:
    // Takes the safeguard folder. Links are not followed, as their owner could have them lead to
    // what only root may read.
    OutgoingFile(const std::string& folder, const std::string& name);

    // errno of what failed last, or 0.
    int error() const { return error_; }
    // Name, size and time; the digest too once it was taken.
    const CopiedFile& facts() const { return facts_; }
    void takeDigest();

    // Hands out the contents in pieces until one is refused. Returns false, with an error, if less
    // could be read than there was; what was added meanwhile is not read.
    bool read(const std::function<bool(std::string_view)>& take);

private:
    const Descriptor file_;
    CopiedFile facts_;
    int error_ = 0;
};

}  // namespace tarnwick
