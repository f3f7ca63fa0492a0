#pragma once

#include <optional>
#include <string>
#include <vector>

namespace tarnwick {

// What a start of the window program asks for.
struct StartOptions {
    enum class Purpose { Run, PrintHelp, PrintVersion };

    Purpose purpose = Purpose::Run;
    std::optional<std::string> action;  // the quick action to begin with
    bool isService = false;             // started by the session bus, whose call follows
};

// Null if the words are wrong. The toolkit's own options are wrong too, as they can load plugins.
std::optional<StartOptions> parseStartOptions(const std::vector<std::string>& words);

extern const char* const startHelp;

}  // namespace tarnwick
