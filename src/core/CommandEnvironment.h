#pragma once

namespace tarnwick {

// Opens those of the standard descriptors that are closed, so that no file opened later gets their
// numbers.
void fillStandardDescriptors();

// Prepares the process for the commands that it starts: the working directory is "/", no variable
// changes what the tools do, this program's own tools come first on the PATH, and a closed pipe
// ends neither this process nor a command half-way.
// Call once, before any thread or command starts. Returns false if "/" cannot be entered.
bool prepareForCommands();

}  // namespace tarnwick
