#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace tarnwick {

// A quick action that the home screen offers for the application.
struct ShortcutItem {
    std::string type;
    std::string localizedTitle;
};

// Whether a text can be the short name of a quick action, as desktop entries have it: letters,
// digits and hyphens, not many.
bool isActionName(std::string_view text);

// Why the application was launched.
struct LaunchOptions {
    std::optional<ShortcutItem> shortcutItem;  // none if the application itself was chosen
};

}  // namespace tarnwick
