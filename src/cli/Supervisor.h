#pragma once

#include <functional>

namespace tarnwick {

// How supervised work ended, and the status it returned if it finished.
struct SupervisedRun {
    enum class End { Finished, Interrupted, Crashed };
    End end;
    int status = 0;
};

// Runs the work in a process of its own and waits for it. The commands that the work starts belong
// to that process's group. On an interrupt, hang-up or termination of this process the work is
// ended first, so that it starts nothing more, then its commands; when this returns, none of them
// is left. Call it while there is one thread. The work's return value must fit into an exit status.
SupervisedRun supervise(const std::function<int()>& work);

}  // namespace tarnwick
