#pragma once

namespace tarnwick {

// Fills closed standard descriptors, so that no file that is opened later can take their numbers.
void fillStandardDescriptors();

// What commands of both programs count on: the folder that they start in, and an environment
// without other wishes for the same tools. A reader of this process's output that goes away ends
// neither it nor a command half-way. Call once, before any thread or command starts. False if the
// root folder cannot be entered.
bool prepareForCommands();

}  // namespace tarnwick
