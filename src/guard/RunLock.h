#pragma once

#include <string>

#include "core/Descriptor.h"

namespace tarnwick {

// Of both programs. The log is that of a run that went on after its terminal had hung up.
inline constexpr const char* runLockPath = "/var/lib/tarnwick.lock";
inline constexpr const char* runLogPath = "/var/lib/tarnwick.log";

// What a run that has ended left behind: nothing if it came to its end in somebody's sight.
struct LeftRun {
    enum class Kind { None, CutOff, Unseen };
    Kind kind = Kind::None;
    std::string what = {};  // such as "save notes"
};

// What to say about it to whoever comes next, in sentences; empty if there is nothing to say.
std::string textOf(const LeftRun& left);

// Whether the last record is not one of a run that has come to its end: also true while a run is
// under way.
bool hasLeftRun(const std::string& path);

// Held while a run changes something, so that there is one at a time, of whichever program. It ends
// with the process that holds it, however that ends; the file stays, and remembers what was done.
class RunLock {
public:
    enum class State { Held, TakenByAnother, Unavailable };

    explicit RunLock(const std::string& path);

    State state() const { return state_; }
    // Why it is unavailable, as an error number.
    int error() const { return error_; }

    // What the run before left, until something is recorded.
    LeftRun left() const;
    // What is under way: it counts as cut off if this process ends before the next call.
    void record(const std::string& what) const;
    // The run came to its end, but nobody saw how.
    void recordUnseen(const std::string& what) const;
    void clear() const;

private:
    void write(char mark, const std::string& what) const;

    const Descriptor file_;
    State state_ = State::Held;
    int error_ = 0;
};

}  // namespace tarnwick
