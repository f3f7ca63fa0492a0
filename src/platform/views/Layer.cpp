#include "platform/views/Layer.h"

#include "platform/motion/Attachment.h"
#include "platform/motion/Frames.h"
#include "platform/views/QmlEngine.h"

namespace tarnwick {

namespace {

// Below the view's own content, with the shadow lowest.
constexpr double rectangleDepth = -1;
constexpr double shadowDepth = -2;

void addBehind(QQuickItem* view, QQuickItem* item, double depth) {
    item->setParent(view);
    item->setZ(depth);
    addFillingSubview(view, item);
}

}  // namespace

Layer& Layer::of(QQuickItem* view) {
    return attachmentOf<Layer>(view);
}

Layer::Layer(QQuickItem* view)
    : QObject(view),
      view_(view),
      rectangle_(createQmlItem(QStringLiteral("LayerRectangle"), view)) {
    rectangle_->setObjectName("layer");
    addBehind(view, rectangle_, rectangleDepth);
}

void Layer::setBorderWidth(double width) {
    rectangle_->setProperty("borderWidth", width);
}

void Layer::setBorderColor(const QColor& color) {
    rectangle_->setProperty("borderColor", color);
}

void Layer::setCornerRadius(double radius) {
    rectangle_->setProperty("radius", radius);
}

void Layer::setBackgroundColor(const QColor& color) {
    rectangle_->setProperty("color", color);
}

void Layer::setMasksToBounds(bool masks) {
    view_->setClip(masks);
}

void Layer::setShadow(const Shadow& shadow) {
    if (shadow_ == nullptr) {
        shadow_ = new ShadowView(view_);
        addBehind(view_, shadow_, shadowDepth);
    }
    shadow_->setShadow(shadow);
}

}  // namespace tarnwick
