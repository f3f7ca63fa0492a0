#pragma once

#include "core/Log.h"

namespace tarnwick {

// The log of the system, under the program's name. Where standard error is a terminal the lines are
// shown there as well. Make one at a time.
class SystemLog : public Log {
public:
    SystemLog();
    SystemLog(const SystemLog&) = delete;
    SystemLog& operator=(const SystemLog&) = delete;
    ~SystemLog() override;

    void write(std::string_view line) override;
};

}  // namespace tarnwick
