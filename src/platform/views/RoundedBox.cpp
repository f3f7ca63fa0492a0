#include "platform/views/RoundedBox.h"

#include <QPainter>

namespace tarnwick {

RoundedBox::RoundedBox(QQuickItem* parent) : QQuickPaintedItem(parent) {
    connect(this, &RoundedBox::changed, this, [this] { update(); });
}

void RoundedBox::paint(QPainter* painter) {
    painter->setRenderHint(QPainter::Antialiasing);
    painter->setPen(Qt::NoPen);
    painter->setBrush(color_);
    painter->drawRoundedRect(boundingRect(), radius_, radius_);
}

}  // namespace tarnwick
