#pragma once

#include <sys/types.h>

#include <optional>
#include <string>
#include <vector>

#include "core/ItemCatalogue.h"
#include "guard/LiveData.h"

namespace tarnwick {

// The places of staging copies, unpacked archives and measured archives. Some lie in a folder that
// every user may write to, so what stands there may be a trap.
class ScratchPlaces {
public:
    // All paths are below the root.
    ScratchPlaces(const ItemCatalogue& catalogue, const LiveData& data, std::string root);

    // Takes away, without following it, whatever stands there: a run that was cut off has left it.
    // The data itself stays, if the place leads to it.
    void clear() const;
    // The same, of what is another user's or a link, unless a copy has made it.
    void clearForeign() const;
    // The same, of what was unpacked.
    void clearUnpacked() const;
    // Makes the folder that the line would make in the folder of all users: nobody else can plant,
    // replace or redirect it from then on. Returns it; null if there is nothing to claim.
    std::optional<std::string> claimFor(const std::string& line) const;

private:
    std::optional<std::string> claim(const std::string& place, mode_t mode) const;

    void remove(const std::string& place) const;

    const LiveData& data_;
    const std::string root_;
    std::vector<std::string> places_;
};

}  // namespace tarnwick
