#pragma once

#include <sys/types.h>

namespace tarnwick {

// Has the one thread that talks to buses be the user who started the program: a session's buses let
// nobody else in, root included. That thread can start no programs, whatever a bus tells it; where
// this cannot be had, there is no bus. All other threads keep root's rights. The user can stop and
// end the program through that thread, and no more. Call before the application object is made and
// any bus is used; nothing changes without root's rights, or if root started the program.
void talkToBusesAs(uid_t starter);

}  // namespace tarnwick
