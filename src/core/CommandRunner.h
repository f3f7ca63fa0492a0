#pragma once

#include <string>

namespace tarnwick {

// Runs one fixed command line and waits for it. A seam, so that tests can record lines instead.
class CommandRunner {
public:
    virtual ~CommandRunner() = default;

    // Returns the shell's status as the standard library's `system` does. Operations ignore it:
    // what counts is whether the expected file exists afterwards. Any thread.
    virtual int run(const std::string& line) = 0;
    // What commands said last about a problem, since the last call; empty if that is not known. Any
    // thread.
    virtual std::string takeLastWords() { return {}; }
};

}  // namespace tarnwick
