#pragma once

#include <string>

#include "core/Descriptor.h"

namespace tarnwick {

// Held while a run changes something, so that there is one at a time. It ends with the process that
// holds it, however that ends; the file stays.
class RunLock {
public:
    enum class State { Held, TakenByAnother, Unavailable };

    explicit RunLock(const std::string& path);

    State state() const { return state_; }

private:
    const Descriptor descriptor_;
    const State state_;
};

}  // namespace tarnwick
