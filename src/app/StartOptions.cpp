#include "app/StartOptions.h"

#include "platform/desktop/ShortcutItem.h"

namespace tarnwick {

const char* const startHelp =
    "Usage: RootTarnwick2 [--action save | save-all | restore | options]\n"
    "\n"
    "Opens Tarnwick's window, or brings it to the front.\n"
    "\n"
    "Options:\n"
    "  --action NAME  perform a quick action; if Tarnwick is not running, on an iPhone 6s or 6s "
    "Plus only\n"
    "  --service      wait for a call over the session bus\n"
    "  --help         print this help\n"
    "  --version      print the version\n";

std::optional<StartOptions> parseStartOptions(const std::vector<std::string>& words) {
    StartOptions options;
    for (auto word = words.begin(); word != words.end(); ++word) {
        if (*word == "--help")
            options.purpose = StartOptions::Purpose::PrintHelp;
        else if (*word == "--version")
            options.purpose = StartOptions::Purpose::PrintVersion;
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
