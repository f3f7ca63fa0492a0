#pragma once

#include <string>
#include <utility>
#include <vector>

namespace tarnwick {

// Each field of the objects that --json prints, and what it holds. A name never changes its
// meaning.
const std::vector<std::pair<std::string, std::string>>& jsonFieldTable();

}  // namespace tarnwick
