// What each verb does. The words have been checked against the table.
#pragma once

#include <string>
#include <vector>

#include "cli/ExitStatus.h"
#include "cli/Session.h"

namespace tarnwick {

// What can be saved and restored, in the order of the buttons: sources, packages, all, then the
// items.
std::vector<std::string> targetWords(const ItemCatalogue& catalogue);
// The folders that can be made again.
std::vector<std::string> folderWords();

ExitStatus saveTargets(Session& session, const std::vector<std::string>& words);
ExitStatus restoreTargets(Session& session, const std::vector<std::string>& words);

ExitStatus listSafeguard(Session& session, const std::vector<std::string>& words);
ExitStatus checkArchives(Session& session, const std::vector<std::string>& words);
ExitStatus tellStorage(Session& session, const std::vector<std::string>& words);
ExitStatus tellHelpTexts(Session& session, const std::vector<std::string>& words);

ExitStatus tellSize(Session& session, const std::vector<std::string>& words);
ExitStatus recreateFolders(Session& session, const std::vector<std::string>& words);
ExitStatus removeSaved(Session& session, const std::vector<std::string>& words);
ExitStatus respringDevice(Session& session, const std::vector<std::string>& words);
ExitStatus rebootDevice(Session& session, const std::vector<std::string>& words);

ExitStatus mailPackageList(Session& session, const std::vector<std::string>& words);

}  // namespace tarnwick
