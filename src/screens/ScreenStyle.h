// How elements of all screens are styled. Main thread.
#pragma once

#include <QQuickItem>
#include <QString>

namespace tarnwick {

// A framed section heading.
void styleHeading(QQuickItem* heading);
// A filled button in the program's blue.
void styleButton(QQuickItem* button);
// Without a limit of lines, fitted, and then given its text: its final size is the scene's.
void fillLabel(QQuickItem* label, const QString& text);

}  // namespace tarnwick
