// What commands find out about the safeguard folder.
#pragma once

#include <string>

#include "cli/ExitStatus.h"
#include "cli/Session.h"

namespace tarnwick {

// Complains of each part of the safeguard folder that cannot be listed. One that does not exist is
// empty.
bool isReadable(Session& session);
// The status of a command that could not look at all of it.
ExitStatus unreadable(const Session& session);

// "good", "missing", "damaged" or "cannot be tested".
std::string verdictOn(Session& session, const std::string& archive);

}  // namespace tarnwick
