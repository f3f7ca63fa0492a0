#pragma once

#include <string>
#include <vector>

namespace tarnwick {

// What of an environment ("NAME=value" each) a program with more rights than its caller gets:
// display, session bus, language and runtime folder of the caller's session, where they look like
// such or with what they usually are, and root's own search path and home. Nothing else.
std::vector<std::string> cleanEnvironment(const std::vector<std::string>& environment);

// Makes the process a fresh one: descriptors 0 to 2 are open and no others, nothing comes in by the
// first, no signal is ignored or blocked, new files are writable by their owner only, the working
// folder is "/", and no timer or limit of the caller's cuts a run or a file short.
void cleanProcess();

}  // namespace tarnwick
