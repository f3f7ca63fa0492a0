// The work of a save without its feedback, so that whoever has other feedback can run the same
// work.
#pragma once

#include <string>
#include <vector>

#include "core/CommandRunner.h"
#include "core/FileManager.h"
#include "core/ItemCatalogue.h"

namespace tarnwick {

// Saves Cydia's cached sources with the lines of the own list, or Cydia's apt list where there is
// no cache. Only one of the two saved files is renewed; a failure leaves nothing or an older file,
// and is not told.
void saveSourceLists(FileManager& files);

// Saves dpkg's selection states. The shell's redirection replaces an earlier file.
void savePackageSelections(CommandRunner& runner);

// Runs the lines that copy and zip the item, then takes its staging copies away.
void archiveItem(const BackupItem& item, const std::vector<std::string>& lines,
                 CommandRunner& runner, FileManager& files);

}  // namespace tarnwick
