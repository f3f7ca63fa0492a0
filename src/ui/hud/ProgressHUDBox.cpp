#include "ui/hud/ProgressHUDBox.h"

#include <QPainter>
#include <algorithm>

namespace tarnwick {

namespace {

QRadialGradient darkening(const QRectF& bounds) {
    QRadialGradient gradient(bounds.center(), std::min(bounds.width(), bounds.height()));
    gradient.setColorAt(0, QColor::fromRgbF(0, 0, 0, 0));
    gradient.setColorAt(1, QColor::fromRgbF(0, 0, 0, 0.75F));
    return gradient;
}

}  // namespace

void ProgressHUDBox::paint(QPainter* painter) {
    painter->setRenderHint(QPainter::Antialiasing);
    if (dimBackground)
        painter->fillRect(boundingRect(), darkening(boundingRect()));
    painter->setPen(Qt::NoPen);
    painter->setBrush(color.isValid() ? color
                                      : QColor::fromRgbF(0, 0, 0, static_cast<float>(fillOpacity)));
    painter->drawRoundedRect(frame, cornerRadius, cornerRadius);
}

}  // namespace tarnwick
