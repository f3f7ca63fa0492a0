#include "platform/views/Layer.h"

#include "platform/motion/Frames.h"
#include "platform/views/QmlEngine.h"

namespace tarnwick {

namespace {

constexpr const char* rectangleName = "layer";
constexpr const char* shadowName = "layer's shadow";

// Below the view's own content, and the shadow below that.
constexpr double rectangleDepth = -1;
constexpr double shadowDepth = -2;

// Puts the item behind the view's content, as its child.
void addBehind(QQuickItem* view, QQuickItem* item, const char* name, double depth) {
    item->setParent(view);
    item->setObjectName(name);
    item->setZ(depth);
    addFillingSubview(view, item);
}

template <class Item>
Item* known(const QQuickItem* view, const char* name) {
    return view->findChild<Item*>(name, Qt::FindDirectChildrenOnly);
}

}  // namespace

Layer Layer::of(QQuickItem* view) {
    if (known<QQuickItem>(view, rectangleName) == nullptr)
        addBehind(view, createQmlItem(QStringLiteral("LayerRectangle"), view), rectangleName,
                  rectangleDepth);
    return Layer(view);
}

QQuickItem* Layer::rectangle() const {
    return known<QQuickItem>(view_, rectangleName);
}

// Made when there is a shadow to see.
ShadowView* Layer::shadowView() const {
    auto* shadow = known<ShadowView>(view_, shadowName);
    if (shadow == nullptr) {
        shadow = new ShadowView(view_);
        addBehind(view_, shadow, shadowName, shadowDepth);
    }
    return shadow;
}

void Layer::setBorderWidth(double width) {
    rectangle()->setProperty("borderWidth", width);
}

void Layer::setBorderColor(const QColor& color) {
    rectangle()->setProperty("borderColor", color);
}

void Layer::setCornerRadius(double radius) {
    rectangle()->setProperty("radius", radius);
}

void Layer::setBackgroundColor(const QColor& color) {
    rectangle()->setProperty("color", color);
}

void Layer::setMasksToBounds(bool masks) {
    view_->setClip(masks);
}

void Layer::setShadow(const Shadow& shadow) {
    shadowView()->setShadow(shadow);
}

}  // namespace tarnwick
