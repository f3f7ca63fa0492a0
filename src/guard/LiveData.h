#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "core/ItemCatalogue.h"

namespace tarnwick {

// The data sets where the applications keep them.
class LiveData {
public:
    // All paths are below the root.
    LiveData(const ItemCatalogue& catalogue, std::string root);

    // Whether to remove what stands there would remove all of a data set: the owner may have put
    // a link to the data where copies of it are made. A link itself is no data.
    bool isWhole(std::string_view path) const;

private:
    const std::string root_;
    std::vector<std::string> sources_;
};

}  // namespace tarnwick
