#pragma once

namespace tarnwick {

// The caller's three streams, as descriptors that no started command inherits; -1 where there were
// no descriptors left.
struct Streams {
    int input;
    int results;   // what was done
    int problems;  // what is missing or wrong, questions, progress
};

// Moves the caller's streams out of the way of commands, which read nothing, and whose output leads
// nowhere until it is told where to go. Call once, before any command runs.
Streams separateStreams();

}  // namespace tarnwick
