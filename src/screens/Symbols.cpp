#include "screens/Symbols.h"

#include <utility>

#include "platform/views/SymbolView.h"

namespace tarnwick {

namespace {

// A tray with an arrow that goes into it.
QPainterPath trayWithArrow(double tip, double tail) {
    const double barb = tip > tail ? tip - 4 : tip + 4;
    QPainterPath path;
    path.moveTo(12, tail);
    path.lineTo(12, tip);
    path.moveTo(8, barb);
    path.lineTo(12, tip);
    path.lineTo(16, barb);
    path.moveTo(3, 15);
    path.lineTo(3, 20);
    path.lineTo(21, 20);
    path.lineTo(21, 15);
    return path;
}

QPainterPath backup() {
    return trayWithArrow(15, 3);
}

QPainterPath restore() {
    return trayWithArrow(3, 15);
}

// The outline of three discs on a line: each arc ends where the next disc begins.
QPainterPath cloud() {
    QPainterPath path;
    path.moveTo(7, 19);
    path.arcTo(2.5, 10, 9, 9, 270, -167.3);
    path.arcTo(6, 5, 11, 11, 175.9, -175.9);
    path.arcTo(12.75, 10.5, 8.5, 8.5, 90, -180);
    path.closeSubpath();
    return path;
}

// Three sliders.
QPainterPath options() {
    const std::pair<double, double> knobs[] = {{6, 15}, {12, 8}, {18, 16}};  // y and x
    QPainterPath path;
    for (const auto& [y, x] : knobs) {
        path.moveTo(3, y);
        path.lineTo(x - 2.5, y);
        path.addEllipse(QPointF(x, y), 2.5, 2.5);
        path.moveTo(x + 2.5, y);
        path.lineTo(21, y);
    }
    return path;
}

// A question mark in a circle.
QPainterPath help() {
    QPainterPath path;
    path.addEllipse(QPointF(12, 12), 9, 9);
    path.moveTo(9.2, 9.6);
    path.arcTo(9.2, 6.8, 5.6, 5.6, 180, -225);
    path.quadTo(12, 13, 12, 14.4);
    path.moveTo(12, 17.2);
    path.lineTo(12, 17.3);
    return path;
}

QPainterPath shield() {
    QPainterPath path;
    path.moveTo(12, 2.5);
    path.lineTo(20, 5.5);
    path.lineTo(20, 11);
    path.cubicTo(20, 16.5, 16.5, 20, 12, 21.5);
    path.cubicTo(7.5, 20, 4, 16.5, 4, 11);
    path.lineTo(4, 5.5);
    path.closeSubpath();
    path.moveTo(8.2, 11.8);
    path.lineTo(11, 14.6);
    path.lineTo(16, 9.2);
    return path;
}

}  // namespace

void addProgramSymbols() {
    addSymbol("backup", backup());
    addSymbol("restore", restore());
    addSymbol("cloud", cloud());
    addSymbol("options", options());
    addSymbol("help", help());
    addSymbol("shield", shield());
}

}  // namespace tarnwick
