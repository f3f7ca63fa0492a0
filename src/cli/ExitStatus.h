#pragma once

namespace tarnwick {

// The exit status of the command.
enum ExitStatus : int {
    AllDone = 0,
    // An archive or a backup is missing or damaged, a question was answered with no, or the run
    // failed.
    NotAllDone = 1,
    WrongUsage = 2,
    RunUnderWay = 3,
    NotRoot = 4,
    Interrupted = 130
};

}  // namespace tarnwick
