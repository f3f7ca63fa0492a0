#include "platform/Accessibility.h"

#include <QCoreApplication>
#include <QQmlComponent>
#include <QQmlContext>
#include <QQmlEngine>
#include <QQmlExpression>

namespace tarnwick {

namespace {

// Qt has no public C++ for describing an item; QML's attached properties are it. This object's
// context knows them by name. It belongs to the application object.
QObject* describer() {
    static constexpr const char* name = "accessibility describer";
    QObject* application = QCoreApplication::instance();
    if (auto* known = application->findChild<QObject*>(name))
        return known;
    auto* engine = new QQmlEngine(application);
    QQmlComponent component(engine);
    component.setData(
        "import QtQuick\n"
        "QtObject { property int role; property string name; property string description }",
        QUrl());
    QObject* object = component.create();
    if (object == nullptr)
        qFatal("The QML module QtQuick is not installed as it should be: %s",
               qPrintable(component.errorString()));
    object->setParent(engine);
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
