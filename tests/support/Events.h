#pragma once

#include <map>
#include <string>

#include "support/Diary.h"

namespace tarnwick::testing {

// The table of literal events: from a scene, such as "save notes, nothing zipped", to what it does.
// The scenes of items and of all items in one are put together from the items' sections.
std::map<std::string, Entries> literalEvents();

// Sets the scene of "restore notes, nothing saved": which files are there, and whether zip works,
// follows from the verb and the words after the comma.
void setScene(const std::string& scene, const TemporaryFolder& folder, RecordingRunner& runner);

}  // namespace tarnwick::testing
