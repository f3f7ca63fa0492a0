#pragma once

#include <QAccessible>
#include <QQuickItem>
#include <QStringList>

namespace tarnwick::testing {

// The names of all that assistive technology finds below, in order.
inline QStringList offered(QAccessibleInterface* from) {
    QStringList names;
    for (int place = 0; place < from->childCount(); ++place) {
        QAccessibleInterface* child = from->child(place);
        if (!child->state().invisible)
            names << child->text(QAccessible::Name) << offered(child);
    }
    names.removeAll({});
    return names;
}

// As assistive technology does, which may have found the item earlier. The item acts in a later
// turn of the loop.
inline void pressFromOutside(QQuickItem* item) {
    QAccessible::queryAccessibleInterface(item)->actionInterface()->doAction(
        QAccessibleActionInterface::pressAction());
}

}  // namespace tarnwick::testing
