#pragma once

#include <functional>

namespace tarnwick {

// How supervised work ended, and the status it returned if it finished.
struct SupervisedRun {
    enum class End { Finished, Interrupted, Crashed };
    End end;
    int status = 0;
};

// Runs the work in a process and session of its own and waits for it. On an interrupt, hang-up or
// termination of this process the work is ended first, so that it starts nothing more, then the
// commands it had started; then everything is tidied up, in this process. The same if the work ends
// by a signal. After an interrupt the signals stay blocked: the caller is to end. Call it while
// there is one thread. The work's return value must fit into an exit status.
SupervisedRun supervise(const std::function<int()>& work, const std::function<void()>& tidyUp);

}  // namespace tarnwick
