#include "core/SystemCommandRunner.h"

#include <unistd.h>

#include <cstdlib>

namespace tarnwick {

int SystemCommandRunner::run(const std::string& line) {
    stayIfOver();
    if (output_ != nullptr)
        output_->start();
    const int status = std::system(line.c_str());
    // Before anything else is printed.
    if (output_ != nullptr)
        output_->takeIn();
    stayIfOver();
    return status;
}

void SystemCommandRunner::stayIfOver() const {
    while (isOver_)
        ::pause();
}

std::string SystemCommandRunner::takeLastWords() {
    return output_ != nullptr ? output_->takeLastLine() : std::string();
}

}  // namespace tarnwick
