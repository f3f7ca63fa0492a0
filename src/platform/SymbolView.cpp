#include "platform/SymbolView.h"

#include <QPainter>
#include <QPainterPath>
#include <map>

namespace tarnwick {

namespace {

constexpr double extent = 24.0;  // points, each way; the drawings are made for it
constexpr double lineWidth = 2.0;

// Three lines, as on the buttons that open menus.
QPainterPath menu() {
    QPainterPath path;
    for (const double y : {6.0, 12.0, 18.0}) {
        path.moveTo(3, y);
        path.lineTo(21, y);
    }
    return path;
}

QPainterPath drawingOf(const QString& name) {
    static const std::map<QString, QPainterPath (*)()> drawings = {{"menu", menu}};
    const auto drawing = drawings.find(name);
    return drawing == drawings.end() ? QPainterPath() : drawing->second();
}

}  // namespace

SymbolView::SymbolView(QQuickItem* parent) : QQuickPaintedItem(parent) {
    setImplicitSize(extent, extent);
}

void SymbolView::setName(const QString& name) {
    if (name == name_)
        return;
    name_ = name;
    emit nameChanged();
    update();
}

void SymbolView::setColor(const QColor& color) {
    if (color == color_)
        return;
    color_ = color;
    emit colorChanged();
    update();
}

void SymbolView::paint(QPainter* painter) {
    painter->setRenderHint(QPainter::Antialiasing);
    painter->scale(width() / extent, height() / extent);
    painter->setPen(QPen(color_, lineWidth, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter->drawPath(drawingOf(name_));
}

}  // namespace tarnwick
