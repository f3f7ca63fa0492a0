#include "platform/views/SymbolView.h"

#include <QCoreApplication>
#include <QHash>
#include <QPainter>
#include <cmath>

#include "platform/motion/Attachment.h"

namespace tarnwick {

namespace {

constexpr double lineWidth = 2.0;

// Three lines, for a button that opens a menu.
QPainterPath menu() {
    QPainterPath path;
    for (const double y : {6.0, 12.0, 18.0}) {
        path.moveTo(3, y);
        path.lineTo(21, y);
    }
    return path;
}

// An arrowhead that points down, where a list goes on.
QPainterPath more() {
    QPainterPath path;
    path.moveTo(6, 9.5);
    path.lineTo(12, 15);
    path.lineTo(18, 9.5);
    return path;
}

// All drawings by name.
class Symbols : public QObject {
public:
    using QObject::QObject;

    QHash<QString, QPainterPath> drawings = {{"menu", menu()}, {"more", more()}};
};

QHash<QString, QPainterPath>& drawings() {
    return attachmentOf<Symbols>(QCoreApplication::instance()).drawings;
}

}  // namespace

void addSymbol(const QString& name, const QPainterPath& drawing) {
    drawings()[name] = drawing;
}

SymbolView::SymbolView(QQuickItem* parent) : PaintedView(parent) {
    setImplicitSize(symbolExtent, symbolExtent);
}

void SymbolView::setName(const QString& name) {
    if (change(name_, name))
        emit nameChanged();
}

void SymbolView::setColor(const QColor& color) {
    if (change(color_, color))
        emit colorChanged();
}

void SymbolView::paint(QPainter* painter) {
    painter->setRenderHint(QPainter::Antialiasing);
    const double scale = width() / symbolExtent;
    painter->scale(scale, height() / symbolExtent);
    painter->setPen(
        QPen(color_, lineWidth / std::sqrt(scale), Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter->drawPath(drawings().value(name_));
}

}  // namespace tarnwick
