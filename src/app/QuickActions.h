#pragma once

#include <QString>

#include "platform/desktop/ShortcutItem.h"

namespace tarnwick {

// The program's name on the session bus and to desktops.
inline constexpr char applicationId[] = "com.fenlow.tarnwick2";

// The shortcut item of an action's short name, such as "save-all", with the title that the home
// screen shows; an action that it does not show is called by its name.
ShortcutItem shortcutItem(const QString& action);

}  // namespace tarnwick
