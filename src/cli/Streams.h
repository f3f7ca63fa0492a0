#pragma once

namespace tarnwick {

// The caller's three streams, as descriptors that no started command inherits.
struct Streams {
    int input;
    int results;   // what was done
    int problems;  // what is missing or wrong, questions, progress
};

enum class CommandOutput { Discarded, ShownWithProblems };

// Sets the caller's streams apart and gives commands their own: they read nothing, and what they
// print goes where `output` says. Call once, before any command runs.
Streams separateStreams(CommandOutput output);

}  // namespace tarnwick
