#pragma once

#include <memory>
#include <mutex>
#include <optional>
#include <string>
#include <vector>

#include "guard/Guard.h"
#include "guard/RunLock.h"

namespace tarnwick {

// The run of a program whose tasks may overlap: the lock is held while any of them is under way.
class SharedRun {
public:
    // Ends the task's part in the run when the last copy goes, on any thread.
    using Ticket = std::shared_ptr<const void>;

    // The guard outlives the run, and the run its tickets.
    SharedRun(Guard& guard, std::string lockPath);

    // Null if another program's run is under way. Where there is no lock to be had, without root's
    // rights for example, the task goes on without it. Any thread.
    Ticket enter(const std::string& what);
    // What a run that is over left behind; it is forgotten then. Any thread.
    LeftRun takeLeft();

private:
    bool begin();
    void leave(const std::string& what);
    void record() const;

    Guard& guard_;
    const std::string lockPath_;
    std::mutex mutex_;  // guards what follows
    std::optional<RunLock> lock_;
    std::vector<std::string> tasks_;
};

}  // namespace tarnwick
