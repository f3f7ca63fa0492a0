// The words that commands take.
#pragma once

#include <string>
#include <vector>

#include "core/ItemCatalogue.h"

namespace tarnwick {

// "TweaksPrefs" is "tweaks-prefs".
std::string kebabCase(const std::string& key);

std::vector<std::string> itemWords(const ItemCatalogue& catalogue);
// Null if no item goes by the word.
const BackupItem* itemOfWord(const ItemCatalogue& catalogue, const std::string& word);

// What can be saved and restored, in the order of the buttons: sources, packages, all, then the
// items.
std::vector<std::string> targetWords(const ItemCatalogue& catalogue);
// The name of the action that does the verb to the target: "restore" and "notes" give
// "restoreNotes".
std::string actionName(const std::string& verb, const std::string& target,
                       const ItemCatalogue& catalogue);

inline constexpr const char* sourcesWord = "sources";
inline constexpr const char* packagesWord = "packages";
// The first of the names, for a message, and how many more there are.
std::string someOf(std::vector<std::string> names);

inline constexpr const char* everyItem = "all";

}  // namespace tarnwick
