// The words that commands take.
#pragma once

#include <string>
#include <vector>

#include "core/ItemCatalogue.h"

namespace tarnwick {

// "TweaksPrefs" is "tweaks-prefs".
std::string kebabCase(const std::string& key);

std::vector<std::string> itemWords(const ItemCatalogue& catalogue);
// None if no item goes by the word.
const BackupItem* itemOfWord(const ItemCatalogue& catalogue, const std::string& word);

}  // namespace tarnwick
