#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "copy/CopyProgress.h"
#include "copy/Manifest.h"

namespace tarnwick {

// What is done with a copy as it is read. Each step may say, in words, why it cannot be done. This
// one does nothing.
class CopySink {
public:
    using Fault = std::optional<std::string>;

    virtual ~CopySink() = default;
    virtual Fault begin(const Manifest&) { return {}; }
    virtual Fault open(const CopiedFile&) { return {}; }
    virtual Fault write(std::string_view) { return {}; }
    virtual Fault close() { return {}; }
};

struct ReadCopy {
    std::optional<Manifest> manifest;
    // Why the copy is not whole, and where; or what the sink said.
    std::optional<std::string> fault;
};

// Reads a copy to its end and checks everything: the files are those of the manifest, in its
// order, with the contents that their digests tell. The sink gets what is not yet checked; only a
// result without a fault says that all of it is good.
ReadCopy readCopy(int input, const std::vector<std::string>& names, CopySink& sink,
                  const CopyProgress& progress);

}  // namespace tarnwick
