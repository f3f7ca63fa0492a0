#pragma once

#include <map>
#include <string>
#include <vector>

namespace tarnwick {

using Environment = std::map<std::string, std::string>;

// What of an environment ("NAME=value" each) a program with more rights than its caller gets:
// display, session bus, language and runtime folder of the caller's session, where they look like
// such or with what they usually are, and root's own search path and home. Nothing else.
Environment cleanEnvironment(const std::vector<std::string>& environment);

// Makes the process a fresh one: descriptors 0 to 2 are open and no others, nothing comes in by the
// first, no signal is ignored or blocked, no timer runs, new files are writable by their owner
// only, and the working folder is "/". The caller's limits of time and size are lifted as far as
// the system lets it.
void cleanProcess();

}  // namespace tarnwick
