#pragma once

#include <QQuickItem>
#include <QString>
#include <QVariantMap>

class QQmlEngine;

namespace tarnwick {

// The application's only QML engine, which knows the module Tarnwick. Owned by the application
// object. Main thread.
QQmlEngine& applicationQmlEngine();

// Creates an item of the named type of the module as a child of the parent. The module is part of
// the program, so a failure means that an import is not installed; it ends the program.
QQuickItem* createQmlItem(const QString& typeName, QQuickItem* parent, QVariantMap properties = {});

}  // namespace tarnwick
