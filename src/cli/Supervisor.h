#pragma once

#include <functional>

namespace tarnwick {

// How supervised work ended, and the status it returned if it finished.
struct SupervisedRun {
    enum class End { Finished, Interrupted, Crashed };
    End end;
    int status = 0;
};

// Runs the work in a process and session of its own and waits for it. If this process is
// interrupted, hung up or terminated, or a signal ends the work, then the work is ended first, so
// that it starts nothing more, next the commands that it had started, and finally this process
// tidies up. After an interrupt the signals stay blocked, as the caller is to exit. Call it while
// there is one thread. The work's result must fit into an exit status.
SupervisedRun supervise(const std::function<int()>& work, const std::function<void()>& tidyUp);

}  // namespace tarnwick
