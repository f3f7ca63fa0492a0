#pragma once

#include <thread>

#include "core/Pipe.h"
#include "core/SystemCommandRunner.h"

namespace tarnwick {

// When a signal ends the program, its commands are ended first, so that none works on without it.
// One at a time; made before the program's other threads.
class Termination {
public:
    // The runner outlives it.
    explicit Termination(SystemCommandRunner& runner);
    Termination(const Termination&) = delete;
    Termination& operator=(const Termination&) = delete;
    ~Termination();

private:
    void await();
    [[noreturn]] void endCommandsAndProgram(int signal);

    SystemCommandRunner& runner_;
    const Pipe pipe_;
    std::jthread thread_;
};

}  // namespace tarnwick
