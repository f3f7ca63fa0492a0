#pragma once

#include <sys/types.h>

namespace tarnwick {

// While it lives, this thread is the user who started the program, for displays and buses that let
// nobody else in, root included. Threads that are started meanwhile stay so; all others keep root's
// rights. Does nothing without root's rights, or if root is the starter.
class StartersIdentity {
public:
    explicit StartersIdentity(uid_t starter);
    ~StartersIdentity();
    StartersIdentity(const StartersIdentity&) = delete;
    StartersIdentity& operator=(const StartersIdentity&) = delete;
};

}  // namespace tarnwick
