// What each verb does. The words have been checked against the table.
#pragma once

#include <string>
#include <vector>

#include "cli/ExitStatus.h"
#include "cli/Session.h"

namespace tarnwick {

// The folders that can be recreated.
std::vector<std::string> folderWords();

ExitStatus saveTargets(Session& session, const std::vector<std::string>& words);
ExitStatus restoreTargets(Session& session, const std::vector<std::string>& words);

ExitStatus listSafeguard(Session& session, const std::vector<std::string>& words);
ExitStatus checkForWipe(Session& session, const std::vector<std::string>& words);
ExitStatus compareFiles(Session& session, const std::vector<std::string>& words);
ExitStatus showStorage(Session& session, const std::vector<std::string>& words);
ExitStatus showHelpTexts(Session& session, const std::vector<std::string>& words);

ExitStatus showSize(Session& session, const std::vector<std::string>& words);
ExitStatus recreateFolders(Session& session, const std::vector<std::string>& words);
ExitStatus removeSaved(Session& session, const std::vector<std::string>& words);
ExitStatus respringDevice(Session& session, const std::vector<std::string>& words);
ExitStatus rebootDevice(Session& session, const std::vector<std::string>& words);

ExitStatus exportSafeguard(Session& session, const std::vector<std::string>& words);
ExitStatus importSafeguard(Session& session, const std::vector<std::string>& words);

ExitStatus mailPackageList(Session& session, const std::vector<std::string>& words);

ExitStatus showHelp(Session& session, const std::vector<std::string>& words);

}  // namespace tarnwick
