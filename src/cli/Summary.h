// What became of each thing, at the end of a run.
#pragma once

#include <string>
#include <vector>

#include "cli/Session.h"

namespace tarnwick {

// A line or an object for each thing that the words name.
void tellWhatWasSaved(Session& session, const std::vector<std::string>& words);
void tellWhatWasRestored(Session& session, const std::vector<std::string>& words);

}  // namespace tarnwick
