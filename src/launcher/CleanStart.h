#pragma once

#include <map>
#include <string>
#include <vector>

namespace tarnwick {

using Environment = std::map<std::string, std::string>;

// The part of an environment ("NAME=value" each) that a program with more rights than its caller
// gets: display, session bus, language and runtime folder of the caller's session, if their values
// are well-formed, else the usual ones; and root's own search path and home. Nothing else.
Environment cleanEnvironment(const std::vector<std::string>& environment);

// Resets what the process inherited: only descriptors 0 to 2 are open and the first one reads
// nothing, no signal is ignored or blocked, no timer runs, only the owner may write new files, and
// the working directory is "/". The caller's limits of time and size are lifted as far as possible.
void cleanProcess();

}  // namespace tarnwick
