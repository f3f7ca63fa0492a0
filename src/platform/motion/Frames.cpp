#include "platform/motion/Frames.h"

#include "platform/motion/Attachment.h"

namespace tarnwick {

namespace {

// Keeps a view as large as its superview.
class Filling : public QObject {
public:
    Filling(QQuickItem* superview, QQuickItem* view) : QObject(view) {
        const auto fill = [superview, view] { view->setSize(superview->size()); };
        connect(superview, &QQuickItem::widthChanged, this, fill);
        connect(superview, &QQuickItem::heightChanged, this, fill);
        fill();
    }
};

}  // namespace

void addFillingSubview(QQuickItem* superview, QQuickItem* view) {
    delete findAttachment<Filling>(view);
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
    delete findAttachment<Filling>(view);
    view->setParentItem(nullptr);
}

}  // namespace tarnwick
