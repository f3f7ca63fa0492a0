#include "screens/ScreenStyle.h"

#include <limits>

#include "platform/views/Layer.h"

namespace tarnwick {

namespace {

constexpr double borderWidth = 1.0;   // points
constexpr double cornerRadius = 5.0;  // points

QColor lightGray() {
    return QColor::fromRgbF(2 / 3.0F, 2 / 3.0F, 2 / 3.0F);
}

}  // namespace

QColor programBlue() {
    return QColor::fromRgbF(0, 122 / 255.0F, 1);
}

void styleHeading(QQuickItem* heading) {
    Layer& layer = Layer::of(heading);
    layer.setBorderWidth(borderWidth);
    layer.setCornerRadius(cornerRadius);
    layer.setMasksToBounds(true);
    layer.setBorderColor(lightGray());
}

void styleButton(QQuickItem* button) {
    Layer& layer = Layer::of(button);
    layer.setBorderWidth(borderWidth);
    layer.setCornerRadius(cornerRadius);
    button->setProperty("captionColor", QColor(Qt::white));
    layer.setBackgroundColor(programBlue());
    layer.setBorderColor(programBlue());
}

void fillLabel(QQuickItem* label, const QString& text) {
    label->setProperty("maximumLineCount", std::numeric_limits<int>::max());
    label->ensurePolished();
    label->setProperty("text", text);
}

}  // namespace tarnwick
