#pragma once

#include <fcntl.h>
#include <unistd.h>

#include <array>

#include "core/Descriptor.h"

namespace tarnwick {

// A pipe that no started command inherits. Reading from it never waits.
class Pipe {
public:
    Pipe() : Pipe(newEnds()) {}

    bool isOpen() const { return reading_.isOpen(); }
    int reading() const { return reading_.number(); }
    int writing() const { return writing_.number(); }

private:
    explicit Pipe(const std::array<int, 2>& ends) : reading_(ends[0]), writing_(ends[1]) {}

    static std::array<int, 2> newEnds() {
        std::array<int, 2> ends = {-1, -1};
        if (::pipe2(ends.data(), O_CLOEXEC) == 0)
            ::fcntl(ends[0], F_SETFL, O_NONBLOCK);
        return ends;
    }

    const Descriptor reading_;
    const Descriptor writing_;
};

}  // namespace tarnwick
