#pragma once

#include <QQuickItem>
#include <QString>
#include <QVariantMap>

class QQmlEngine;

namespace tarnwick {

// The one engine of the application, which knows the module Tarnwick. It belongs to the application
// object. Main thread.
QQmlEngine& applicationQmlEngine();

// Makes an item of the module's type of that name as a child of the parent. A type that cannot be
// made ends the program: the module is part of it, so what it imports is not installed.
QQuickItem* createQmlItem(const QString& typeName, QQuickItem* parent, QVariantMap properties = {});

}  // namespace tarnwick
