#pragma once

#include <QQuickItem>

namespace tarnwick {

// Vertical scrolling of a flicking view, never beyond its content. Lengths in points. Main thread.

// Scrolls down by the distance, up if it is negative.
void scrollBy(QQuickItem* flickable, double distance);

// Scrolls as little as needed to show a rectangle of an item, with the margin above and below. The
// top wins if it is taller than the view.
void scrollToShow(QQuickItem* flickable, const QQuickItem* item, const QRectF& rectangle,
                  double margin);

// Shows the whole item in every flicking view that holds it.
void scrollToVisible(const QQuickItem* item);

}  // namespace tarnwick
