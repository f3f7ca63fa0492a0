#pragma once

#include <functional>

namespace tarnwick {

// How supervised work ended, and the status it returned if it finished.
struct SupervisedRun {
    enum class End { Finished, Interrupted, Crashed };
    End end;
    int status = 0;
    bool wasHungUp = false;  // and went on
};

// Work that is supervised, and what to do about interruptions.
struct SupervisedWork {
    std::function<int()> work;  // its result must fit into an exit status
    // After an interrupt, or if the work was killed.
    std::function<void()> tidyUp;
    // Work that should not be left half done goes on when the terminal hangs up. A first Ctrl-C
    // only warns; a second one within three seconds interrupts. Without a warning it is like other
    // signals.
    std::function<void()> warn = {};
    // Commands that know where to stop get the time for it: a package that is being installed.
    bool endsGently = false;
};

// Does the work in a process and session of its own and waits for it. If this process is
// interrupted, hung up or terminated, or a signal ends the work, then the work is ended first, so
// that it starts nothing more, next everything that it had started, in whatever session, and
// finally this process tidies up. After an interrupt the signals stay blocked, as the caller is to
// exit. Call it while there is one thread.
SupervisedRun supervise(const SupervisedWork& supervised);

}  // namespace tarnwick
