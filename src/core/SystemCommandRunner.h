#pragma once

#include "core/CommandRunner.h"

namespace tarnwick {

// Passes the line to the system's shell.
class SystemCommandRunner : public CommandRunner {
public:
    int run(const std::string& line) override;
};

}  // namespace tarnwick
