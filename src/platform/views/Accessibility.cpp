#include "platform/views/Accessibility.h"

#include <QQmlComponent>
#include <QQmlContext>
#include <QQmlEngine>
#include <QQmlExpression>

#include "platform/motion/Attachment.h"
#include "platform/views/QmlEngine.h"

namespace tarnwick {

namespace {

// Qt has no public C++ API to describe an item, only QML's attached properties. An expression sets
// them from an object that holds the texts.
class Describer : public QObject {
public:
    explicit Describer(QQmlEngine* engine) : QObject(engine) {
        QQmlComponent component(engine);
        component.setData(
            "import QtQuick\n"
            "QtObject { property int role; property string name; property string description }",
            QUrl());
        texts_ = component.create();
        if (texts_ == nullptr)
            qFatal("The QML module QtQuick is not installed correctly: %s",
                   qPrintable(component.errorString()));
        texts_->setParent(this);
    }

    void describe(QQuickItem* item, QAccessible::Role role, const QString& name,
                  const QString& description) {
        texts_->setProperty("role", static_cast<int>(role));
        texts_->setProperty("name", name);
        texts_->setProperty("description", description);
        QQmlExpression expression(qmlContext(texts_), item,
                                  "Accessible.role = role; Accessible.name = name; "
                                  "Accessible.description = description");
        expression.evaluate();
    }

private:
    QObject* texts_;
};

}  // namespace

void describe(QQuickItem* item, QAccessible::Role role, const QString& name,
              const QString& description) {
    attachmentOf<Describer>(&applicationQmlEngine()).describe(item, role, name, description);
}

}  // namespace tarnwick
