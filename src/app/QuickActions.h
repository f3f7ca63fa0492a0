#pragma once

#include <QString>

#include "platform/desktop/ShortcutItem.h"

namespace tarnwick {

// The program's name on the session bus and to desktops.
inline constexpr char applicationId[] = "com.fenlow.tarnwick2";

// The shortcut item of an action's short name, such as "save-all", with its title on the home
// screen; an action without a title there gets its name as the title.
ShortcutItem shortcutItem(const QString& action);

}  // namespace tarnwick
