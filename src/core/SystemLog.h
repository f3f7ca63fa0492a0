#pragma once

#include "core/Log.h"

namespace tarnwick {

// The system's log, under the program's name; also shown on standard error if that is a terminal.
// One at a time.
class SystemLog : public Log {
public:
    SystemLog();
    SystemLog(const SystemLog&) = delete;
    SystemLog& operator=(const SystemLog&) = delete;
    ~SystemLog() override;

    void write(std::string_view line) override;
};

}  // namespace tarnwick
