// The style of elements on all screens. Main thread.
#pragma once

#include <QColor>
#include <QQuickItem>
#include <QString>

namespace tarnwick {

// Of bars, and of buttons' fills and borders.
QColor programBlue();

// A framed section heading.
void styleHeading(QQuickItem* heading);
// A filled button in the program's blue.
void styleButton(QQuickItem* button);
// Lifts the limit of lines, fits the label, and then sets its text: the scene decides its final
// size.
void fillLabel(QQuickItem* label, const QString& text);

}  // namespace tarnwick
