#pragma once

namespace tarnwick {

// Becomes the system's zip: the first one on the PATH that is not this program. Returns, with an
// exit status, if there is none.
int becomeSystemZip(char** arguments);

}  // namespace tarnwick
