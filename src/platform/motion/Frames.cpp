#include "platform/motion/Frames.h"

namespace tarnwick {

namespace {

// Follows its superview's size for as long as it is there.
class Filling : public QObject {
public:
    Filling(QQuickItem* superview, QQuickItem* view) : QObject(view) {
        setObjectName(name);
        const auto fill = [superview, view] { view->setSize(superview->size()); };
        connect(superview, &QQuickItem::widthChanged, this, fill);
        connect(superview, &QQuickItem::heightChanged, this, fill);
        fill();
    }

    static void endFor(QQuickItem* view) {
        delete view->findChild<QObject*>(name, Qt::FindDirectChildrenOnly);
    }

private:
    static constexpr const char* name = "filling";
};

}  // namespace

void addFillingSubview(QQuickItem* superview, QQuickItem* view) {
    Filling::endFor(view);
    view->setParentItem(superview);
    view->setPosition({0, 0});
    new Filling(superview, view);
}

void pinToWidth(QQuickItem* content, const QQuickItem* view) {
    const auto pin = [content, view] { content->setWidth(view->width()); };
    content->setX(0);
    QObject::connect(view, &QQuickItem::widthChanged, content, pin);
    pin();
}

void removeFromSuperview(QQuickItem* view) {
    Filling::endFor(view);
    view->setParentItem(nullptr);
}

}  // namespace tarnwick
