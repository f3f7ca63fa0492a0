// A Qt Quick window with one text: what any window costs here.
#include <QGuiApplication>
#include <QQmlComponent>
#include <QQmlEngine>
#include <QQuickItem>
#include <QQuickWindow>

int main(int count, char** values) {
    qputenv("QT_QUICK_BACKEND", "software");
    const QGuiApplication application(count, values);
    QQuickWindow window;
    QQmlEngine engine;
    QQmlComponent component(&engine);
    component.setData("import QtQuick\nText { text: \"Tarnwick\" }", QUrl());
    auto* text = qobject_cast<QQuickItem*>(component.create());
    text->setParentItem(window.contentItem());
    window.resize(375, 667);
    window.show();
    return QGuiApplication::exec();
}
