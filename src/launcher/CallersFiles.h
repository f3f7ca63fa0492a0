#pragma once

#include "launcher/CleanStart.h"

namespace tarnwick {

// Replaces the paths of an environment that lead into the caller's folders: what is taken from
// there is taken with the caller's own rights, and root's program is given a folder of its own.
// The display's key becomes a copy of it, the Wayland display a full path if the runtime folder is
// the caller's; what cannot be had is left out. For a set-user-ID process with one thread.
void replaceCallersFiles(Environment& environment);

}  // namespace tarnwick
