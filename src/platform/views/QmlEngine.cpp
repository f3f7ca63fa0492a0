#include "platform/views/QmlEngine.h"

#include <QCoreApplication>
#include <QQmlComponent>
#include <QQmlEngine>
#include <utility>

#include "platform/motion/Attachment.h"

// The linker drops a static library's resources unless something refers to them.
extern void qml_register_types_Tarnwick();
static void initializeResources() {
    qml_register_types_Tarnwick();
}

namespace tarnwick {

namespace {

class ApplicationEngine : public QQmlEngine {
public:
    explicit ApplicationEngine(QObject* application) : QQmlEngine(application) {
        initializeResources();
        addImportPath(QStringLiteral("qrc:/qt/qml"));
    }
};

}  // namespace

QQmlEngine& applicationQmlEngine() {
    return attachmentOf<ApplicationEngine>(QCoreApplication::instance());
}

QQuickItem* createQmlItem(const QString& typeName, QQuickItem* parent, QVariantMap properties) {
    QQmlComponent component(&applicationQmlEngine(),
                            QUrl(QStringLiteral("qrc:/qt/qml/Tarnwick/%1.qml").arg(typeName)));
    properties.insert(QStringLiteral("parent"), QVariant::fromValue(parent));
    auto* item = qobject_cast<QQuickItem*>(component.createWithInitialProperties(properties));
    if (item == nullptr)
        qFatal("%s", qPrintable(component.errorString()));
    item->setParent(parent);
    return item;
}

}  // namespace tarnwick
