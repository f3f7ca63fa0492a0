#pragma once

#include <string>

namespace tarnwick {

// Runs one fixed command line to its end. A seam, so that tests can record lines instead of running
// them.
class CommandRunner {
public:
    virtual ~CommandRunner() = default;

    // Returns the status of the shell, as the standard library's `system` gives it. Operations do
    // not look at it: what counts is whether the expected file is there afterwards. Any thread.
    virtual int run(const std::string& line) = 0;
};

}  // namespace tarnwick
