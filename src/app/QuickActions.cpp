#include "app/QuickActions.h"

#include <QSettings>

namespace tarnwick {

ShortcutItem shortcutItem(const QString& action) {
    const QSettings desktopEntry(":/com.fenlow.tarnwick2.desktop", QSettings::IniFormat);
    const QVariant title = desktopEntry.value("Desktop Action " + action + "/Name", action);
    return {.type = applicationId + ("." + action).toStdString(),
            .localizedTitle = title.toString().toStdString()};
}

}  // namespace tarnwick
