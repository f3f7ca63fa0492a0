#pragma once

#include <string>

namespace tarnwick {

// Held while a run changes something, so that there is one at a time. Goes with the process that
// holds it, however that ends; the file stays.
class RunLock {
public:
    enum class State { Held, TakenByAnother, Unavailable };

    explicit RunLock(const std::string& path);
    RunLock(const RunLock&) = delete;
    RunLock& operator=(const RunLock&) = delete;
    ~RunLock();

    State state() const { return state_; }

private:
    int descriptor_;
    State state_;
};

}  // namespace tarnwick
