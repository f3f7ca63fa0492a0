#include "core/SystemCommandRunner.h"

#include <cstdlib>

namespace tarnwick {

int SystemCommandRunner::run(const std::string& line) {
    return std::system(line.c_str());
}

}  // namespace tarnwick
