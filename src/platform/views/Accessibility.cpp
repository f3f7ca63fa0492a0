#include "platform/views/Accessibility.h"

#include <QQmlComponent>
#include <QQmlContext>
#include <QQmlEngine>
#include <QQmlExpression>

#include "platform/motion/Attachment.h"
#include "platform/views/QmlEngine.h"

namespace tarnwick {

namespace {

// Qt describes an item through QML's attached properties only, and has no public C++ for them. An
// expression sets them from an object that holds the words.
class Describer : public QObject {
public:
    explicit Describer(QQmlEngine* engine) : QObject(engine) {
        QQmlComponent component(engine);
        component.setData(
            "import QtQuick\n"
            "QtObject { property int role; property string name; property string description }",
            QUrl());
        words_ = component.create();
        if (words_ == nullptr)
            qFatal("The QML module QtQuick is not installed correctly: %s",
                   qPrintable(component.errorString()));
        words_->setParent(this);
    }

    void describe(QQuickItem* item, QAccessible::Role role, const QString& name,
                  const QString& description) {
        words_->setProperty("role", static_cast<int>(role));
        words_->setProperty("name", name);
        words_->setProperty("description", description);
        QQmlExpression expression(qmlContext(words_), item,
                                  "Accessible.role = role; Accessible.name = name; "
                                  "Accessible.description = description");
        expression.evaluate();
    }

private:
    QObject* words_;
};

}  // namespace

void describe(QQuickItem* item, QAccessible::Role role, const QString& name,
              const QString& description) {
    attachmentOf<Describer>(&applicationQmlEngine()).describe(item, role, name, description);
}

}  // namespace tarnwick
