#include "platform/controllers/Look.h"

#include <QEvent>
#include <QFontInfo>
#include <QGuiApplication>
#include <QPalette>
#include <algorithm>
#include <cmath>

namespace tarnwick {

namespace {

constexpr double usualFontSize = 15.0;  // pixels; desktops use 12 to 15 by default
constexpr double largestScale = 2.0;    // texts still fit on the narrowest screen

constexpr double readableContrast = 4.5;  // WCAG 2, level AA
constexpr int colorStep = 105;            // percent

int scaled(int pixels) {
    return static_cast<int>(std::lround(pixels * Look::textScale()));
}

QColor either(const char* light, const char* dark) {
    return QColor(Look::isDark() ? dark : light);
}

double linear(float channel) {
    return channel <= 0.04045F ? channel / 12.92 : std::pow((channel + 0.055) / 1.055, 2.4);
}

double luminance(const QColor& color) {
    return 0.2126 * linear(color.redF()) + 0.7152 * linear(color.greenF()) +
           0.0722 * linear(color.blueF());
}

// As WCAG defines it.
double contrast(const QColor& one, const QColor& other) {
    const auto [darker, lighter] = std::minmax({luminance(one), luminance(other)});
    return (lighter + 0.05) / (darker + 0.05);
}

}  // namespace

Look::Look(QObject* parent) : QObject(parent) {
    QCoreApplication::instance()->installEventFilter(this);
}

bool Look::eventFilter(QObject* watched, QEvent* event) {
    const bool isChange = event->type() == QEvent::ApplicationFontChange ||
                          event->type() == QEvent::ApplicationPaletteChange;
    if (isChange && watched == QCoreApplication::instance())
        emit changed();
    return QObject::eventFilter(watched, event);
}

QColor Look::tint() {
    return QGuiApplication::palette().color(QPalette::Highlight);
}

void Look::setTint(const QColor& color) {
    QPalette palette = QGuiApplication::palette();
    palette.setColor(QPalette::Highlight, color);
    QGuiApplication::setPalette(palette);
}

bool Look::isDark() {
    const QPalette palette = QGuiApplication::palette();
    return palette.color(QPalette::Window).lightness() <
           palette.color(QPalette::WindowText).lightness();
}

QColor Look::link() {
    QColor color = tint();
    // Of what it stands on, panels are the nearest to it.
    while (contrast(color, panel()) < readableContrast)
        color = isDark() ? color.lighter(colorStep) : color.darker(colorStep);
    return color;
}

QColor Look::destructive() {
    return either("#d70015", "#ff6961");
}

QColor Look::text() {
    return either("#111820", "#f2f4f7");
}

QColor Look::quietText() {
    return either("#4a5563", "#b3bcc8");
}

QColor Look::screen() {
    return either("#f4f5f7", "#14171b");
}

QColor Look::sheet() {
    return either("#ffffff", "#1b1f24");
}

QColor Look::panel() {
    return either("#f7f7f8", "#2a2e34");
}

QColor Look::separator() {
    return either("#c6c8cc", "#474c54");
}

QColor Look::mark() {
    return either("#7d828a", "#8d939c");
}

QString Look::family() {
    return QGuiApplication::font().family();
}

double Look::textScale() {
    const double chosen = QFontInfo(QGuiApplication::font()).pixelSize();
    return std::clamp(chosen / usualFontSize, 1.0, largestScale);
}

int Look::caption() {
    return scaled(19);
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
