#pragma once

#include <sys/types.h>

namespace tarnwick {

// Gives the one thread that talks to buses the identity of the user who started the program, as a
// session's buses accept nobody else, root included. That thread cannot start programs, whatever a
// bus asks for; where this cannot be arranged, there is no bus. All other threads keep root's
// rights. Through that thread the user can stop and end the program, but nothing more. Call before
// the application object is made and any bus is used; has no effect without root's rights, or if
// root started the program.
void talkToBusesAs(uid_t starter);

}  // namespace tarnwick
