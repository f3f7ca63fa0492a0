#pragma once

#include <string_view>

namespace tarnwick {

// Records what no screen shows. A seam, so that tests can read it.
class Log {
public:
    virtual ~Log() = default;

    // One line, without a line feed. Any thread.
    virtual void write(std::string_view line) = 0;
};

}  // namespace tarnwick
