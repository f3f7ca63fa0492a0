#pragma once

#include "launcher/CleanStart.h"

namespace tarnwick {

// Replaces the paths in an environment that lead into the caller's folders. The display's key is
// copied with the caller's own rights; the Wayland display becomes a full path if the runtime
// folder is the caller's; the program gets a runtime folder of its own. What is not available is
// left out. For a set-user-ID process with one thread.
void replaceCallersFiles(Environment& environment);

}  // namespace tarnwick
