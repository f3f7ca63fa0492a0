#pragma once

#include <map>
#include <string>

#include "support/Diary.h"

namespace tarnwick::testing {

// The table of literal events: from a scene, such as "save notes, nothing zipped", to what it does.
std::map<std::string, Entries> literalEvents();

}  // namespace tarnwick::testing
