#pragma once

#include <mutex>
#include <string>
#include <vector>

#include "core/CommandRunner.h"

namespace tarnwick::testing {

// Writes command lines down, on any thread, and runs none of them.
class LineRecorder : public CommandRunner {
public:
    int run(const std::string& line) override {
        const std::lock_guard lock(guard_);
        lines_.push_back(line);
        return 0;
    }

    std::vector<std::string> lines() const {
        const std::lock_guard lock(guard_);
        return lines_;
    }

private:
    mutable std::mutex guard_;
    std::vector<std::string> lines_;
};

}  // namespace tarnwick::testing
