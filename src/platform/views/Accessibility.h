#pragma once

#include <QAccessible>
#include <QQuickItem>
#include <QString>

namespace tarnwick {

// Tells assistive technology what an item is and what it says. An item that was never described is
// not offered, nor is one that is not visible. Main thread; may be called again when the name
// changes.
void describe(QQuickItem* item, QAccessible::Role role, const QString& name,
              const QString& description = {});

}  // namespace tarnwick
