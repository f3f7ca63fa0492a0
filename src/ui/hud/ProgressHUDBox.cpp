#include "ui/hud/ProgressHUDBox.h"

#include <QPainter>
#include <algorithm>

#include "ui/hud/ProgressHUDLayout.h"

namespace tarnwick {

namespace {

QColor black(double opacity) {
    return QColor::fromRgbF(0, 0, 0, static_cast<float>(shareOf(opacity)));
}

QRadialGradient darkening(const QRectF& bounds) {
    QRadialGradient gradient(bounds.center(), std::min(bounds.width(), bounds.height()));
    gradient.setColorAt(0, black(0));
    gradient.setColorAt(1, black(0.75));
    return gradient;
}

}  // namespace

void ProgressHUDBox::paint(QPainter* painter) {
    painter->setRenderHint(QPainter::Antialiasing);
    if (dimBackground)
        painter->fillRect(boundingRect(), darkening(boundingRect()));
    painter->setPen(Qt::NoPen);
    painter->setBrush(color.isValid() ? color : black(fillOpacity));
    const double radius = std::max(cornerRadius, 0.0);
    painter->drawRoundedRect(frame, radius, radius);
}

}  // namespace tarnwick
