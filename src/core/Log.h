#pragma once

#include <string_view>

namespace tarnwick {

// Takes down, for whoever looks into it later, what no screen tells. A seam, so that tests can read
// it.
class Log {
public:
    virtual ~Log() = default;

    // One line, without its end. Any thread.
    virtual void write(std::string_view line) = 0;
};

}  // namespace tarnwick
