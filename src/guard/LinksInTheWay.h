#pragma once

#include <string>

namespace tarnwick {

// Takes away the links of either kind and the pipes that the owner, or who passes for the owner,
// has put where a copy of the tree is about to write files: `cp` would write through them.
void removeLinksInTheWay(const std::string& tree, const std::string& target);

}  // namespace tarnwick
