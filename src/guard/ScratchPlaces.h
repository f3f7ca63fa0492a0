#pragma once

#include <sys/types.h>

#include <optional>
#include <string>
#include <vector>

#include "core/ItemCatalogue.h"

namespace tarnwick {

// The places of staging copies, unpacked archives and measured archives. Some lie in a folder that
// every user may write to, so what stands there may be a trap.
class ScratchPlaces {
public:
    // All paths are below the root.
    ScratchPlaces(const ItemCatalogue& catalogue, std::string root);

    // Takes away, without following it, whatever stands there: a run that was cut off has left it.
    void clear() const;
    // The same, of what is a link or another user's.
    void clearForeign() const;
    // The same, of what was unpacked.
    void clearUnpacked() const;
    // Makes the folder that the line would make in the folder of all users: nobody else can plant,
    // replace or redirect it from then on. Returns it; null if there is nothing to claim.
    std::optional<std::string> claimFor(const std::string& line) const;

private:
    std::optional<std::string> claim(const std::string& place, mode_t mode) const;

    const std::string root_;
    std::vector<std::string> places_;
};

}  // namespace tarnwick
