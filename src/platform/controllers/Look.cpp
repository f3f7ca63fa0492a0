#include "platform/controllers/Look.h"

#include <QFontInfo>
#include <QGuiApplication>
#include <QPalette>
#include <algorithm>
#include <cmath>

namespace tarnwick {

namespace {

constexpr double usualFontSize = 15.0;  // pixels; desktops use 12 to 15 by default
constexpr double largestScale = 2.0;    // texts still fit on the narrowest screen

int scaled(int pixels) {
    return static_cast<int>(std::lround(pixels * Look::textScale()));
}

}  // namespace

QColor Look::tint() {
    return QGuiApplication::palette().color(QPalette::Highlight);
}

void Look::setTint(const QColor& color) {
    QPalette palette = QGuiApplication::palette();
    palette.setColor(QPalette::Highlight, color);
    QGuiApplication::setPalette(palette);
}

double Look::textScale() {
    const double chosen = QFontInfo(QGuiApplication::font()).pixelSize();
    return std::clamp(chosen / usualFontSize, 1.0, largestScale);
}

int Look::headline() {
    return scaled(17);
}

int Look::callout() {
    return scaled(15);
}

int Look::body() {
    return scaled(13);
}

}  // namespace tarnwick
