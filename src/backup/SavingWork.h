// The work of a save without its feedback, shared by those that report it in different ways.
#pragma once

#include <string>
#include <vector>

#include "core/CommandRunner.h"
#include "core/FileManager.h"
#include "core/ItemCatalogue.h"

namespace tarnwick {

// Saves Cydia's cached sources with the lines of the own list, or Cydia's apt list if there is no
// cache. Refreshes only one of the two saved files; a failure is not reported and leaves the older
// file or none.
void saveSourceLists(const FileReader& files, FileWriter& changes);

// Saves dpkg's selection states. The shell's redirection replaces an earlier file.
void savePackageSelections(CommandRunner& runner);

// Runs the lines that copy and zip the item, then removes its staging copies.
void archiveItem(const BackupItem& item, const std::vector<std::string>& lines,
                 CommandRunner& runner, FileWriter& changes);

}  // namespace tarnwick
