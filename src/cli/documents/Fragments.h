// Pieces of text made from the command's tables, and the templates that they go into.
#pragma once

#include <map>
#include <optional>
#include <string>

#include "core/ItemCatalogue.h"

namespace tarnwick {

// By the names of their places.
using Fragments = std::map<std::string, std::string>;

Fragments manPageFragments(const ItemCatalogue& catalogue);
Fragments completionFragments(const ItemCatalogue& catalogue);

// The template with every @NAME@ replaced by the fragment of that name. Null if a name is unknown,
// which is then in `unknown`.
std::optional<std::string> filled(const std::string& text, const Fragments& fragments,
                                  std::string& unknown);

}  // namespace tarnwick
