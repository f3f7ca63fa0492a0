#pragma once

namespace tarnwick {

// The caller's three streams, as descriptors that no started command inherits.
struct Streams {
    int input;
    int results;   // what was done
    int problems;  // what is missing or wrong, questions, progress
};

enum class CommandOutput { Discarded, ShownWithProblems };

// Moves the caller's streams out of the way of commands, which read nothing and whose output goes
// where `output` says. Call once, before any command runs.
Streams separateStreams(CommandOutput output);

}  // namespace tarnwick
