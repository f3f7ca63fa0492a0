#pragma once

namespace tarnwick {

// What the command ends with.
enum ExitStatus : int {
    AllDone = 0,
    NotAllDone =
        1,  // an archive or a backup is missing or damaged, or a question was answered with no
    WrongUsage = 2,
    RunUnderWay = 3,
    NotRoot = 4,
    Interrupted = 130
};

}  // namespace tarnwick
