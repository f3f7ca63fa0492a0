#pragma once

namespace tarnwick {

// Becomes the system's zip: the next one on the PATH after this program. Returns, with an exit
// status, if there is none.
int becomeSystemZip(char** arguments);

}  // namespace tarnwick
