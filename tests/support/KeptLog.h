#pragma once

#include <string>

#include "core/Log.h"

namespace tarnwick::testing {

class KeptLog : public Log {
public:
    void write(std::string_view line) override { lines += std::string(line) + "\n"; }
    std::string lines;
};

}  // namespace tarnwick::testing
