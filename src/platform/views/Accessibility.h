#pragma once

#include <QAccessible>
#include <QQuickItem>
#include <QString>

namespace tarnwick {

// Describes an item to assistive technology. An item that was never described, or is not visible,
// is not exposed. May be called again when the name changes. Main thread.
void describe(QQuickItem* item, QAccessible::Role role, const QString& name,
              const QString& description = {});

}  // namespace tarnwick
