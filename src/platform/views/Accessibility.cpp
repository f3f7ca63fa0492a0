#include "platform/views/Accessibility.h"

#include <QQmlComponent>
#include <QQmlContext>
#include <QQmlEngine>
#include <QQmlExpression>

#include "platform/views/QmlEngine.h"

namespace tarnwick {

namespace {

// Qt has no public C++ for describing an item; QML's attached properties are it. This object's
// context knows them by name. It belongs to the engine.
QObject* describer() {
    static constexpr const char* name = "accessibility describer";
    QQmlEngine& engine = applicationQmlEngine();
    if (auto* known = engine.findChild<QObject*>(name, Qt::FindDirectChildrenOnly))
        return known;
    QQmlComponent component(&engine);
    component.setData(
        "import QtQuick\n"
        "QtObject { property int role; property string name; property string description }",
        QUrl());
    QObject* object = component.create();
    if (object == nullptr)
        qFatal("The QML module QtQuick is not installed as it should be: %s",
               qPrintable(component.errorString()));
    object->setParent(&engine);
    object->setObjectName(name);
    return object;
}

}  // namespace

void describe(QQuickItem* item, QAccessible::Role role, const QString& name,
              const QString& description) {
    QObject* words = describer();
    words->setProperty("role", static_cast<int>(role));
    words->setProperty("name", name);
    words->setProperty("description", description);
    QQmlExpression expression(qmlContext(words), item,
                              "Accessible.role = role; Accessible.name = name; "
                              "Accessible.description = description");
    expression.evaluate();
}

}  // namespace tarnwick
