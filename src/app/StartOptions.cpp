#include "app/StartOptions.h"

#include "platform/desktop/ShortcutItem.h"

namespace tarnwick {

const char* const startHelp =
    "Usage: RootTarnwick2 [--action save | save-all | restore | options]\n"
    "\n"
    "Opens Tarnwick's window, or brings it to the front.\n"
    "\n"
    "Options:\n"
    "  --action NAME  does a quick action if it runs already, or on an iPhone 6s or 6s Plus\n"
    "  --service      waits for the session bus to tell what to do\n"
    "  --help         this help\n"
    "  --version      the version\n";

std::optional<StartOptions> parseStartOptions(const std::vector<std::string>& words) {
    StartOptions options;
    for (auto word = words.begin(); word != words.end(); ++word) {
        if (*word == "--help")
            options.purpose = StartOptions::Purpose::TellHelp;
        else if (*word == "--version")
            options.purpose = StartOptions::Purpose::TellVersion;
        else if (*word == "--service")
            options.isService = true;
        else if (*word == "--action" && word + 1 != words.end() && isActionName(word[1]))
            options.action = *++word;
        else
            return std::nullopt;
    }
    return options;
}

}  // namespace tarnwick
