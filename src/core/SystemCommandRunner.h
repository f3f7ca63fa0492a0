#pragma once

#include <atomic>

#include "core/CommandOutput.h"
#include "core/CommandRunner.h"

namespace tarnwick {

// Passes the line to the system's shell.
class SystemCommandRunner : public CommandRunner {
public:
    // What commands print goes there; the output outlives the runner. Without one they print where
    // this process does.
    explicit SystemCommandRunner(CommandOutput* output = nullptr) : output_(output) {}

    int run(const std::string& line) override;
    std::string takeLastWords() override;

    // The process is about to end: from now on run() neither starts a line nor returns, as the next
    // step must not follow on one that was cut off. Any thread.
    void startNoMore() { isOver_ = true; }

private:
    void stayIfOver() const;

    CommandOutput* const output_;
    std::atomic<bool> isOver_ = false;
};

}  // namespace tarnwick
