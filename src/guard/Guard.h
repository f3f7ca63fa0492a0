#pragma once

#include <string>

#include "guard/GuardedFiles.h"
#include "guard/GuardedRunner.h"
#include "guard/KeptList.h"
#include "guard/ScratchPlaces.h"

namespace tarnwick {

// Puts around the command lines and file calls of a program what keeps its tasks safe and their
// reports true.
class Guard {
public:
    // The catalogue, the runner and the files outlive the guard. What fails is reported to the
    // listener, in sentences, on the thread where it fails.
    Guard(
        const ItemCatalogue& catalogue, CommandRunner& runner, FileManager& files,
        FaultListener faults = [](const std::string&) {}, std::string root = {});
    Guard(const Guard&) = delete;
    Guard& operator=(const Guard&) = delete;

    CommandRunner& runner() { return runner_; }
    FileManager& files() { return files_; }
    void setFaultListener(FaultListener faults) { faults_ = std::move(faults); }

    // Clears up after a run that was cut off, and after other users. To be called with the lock
    // held and no task under way.
    void clearUp();

private:
    FaultListener faults_;
    const std::string root_;
    const LiveData data_;
    const ScratchPlaces places_;
    GuardedRunner runner_;
    GuardedFiles files_;
};

}  // namespace tarnwick
