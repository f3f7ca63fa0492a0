#pragma once

#include <sys/types.h>

#include <vector>

namespace tarnwick {

// The processes that this one started, directly or through others, whichever session they are in.
// One whose parent ends in this moment may be missed, and is found by the next call.
std::vector<pid_t> descendants();

}  // namespace tarnwick
