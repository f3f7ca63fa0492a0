#pragma once

#include <optional>
#include <string>

namespace tarnwick {

// A quick action that the home screen offers for the application.
struct ShortcutItem {
    std::string type;
    std::string localizedTitle;
};

// Why the application was launched.
struct LaunchOptions {
    std::optional<ShortcutItem> shortcutItem;  // none if the application itself was chosen
};

}  // namespace tarnwick
