#pragma once

#include <QKeyEvent>
#include <QQuickItem>

namespace tarnwick {

// Vertical scrolling of a flicking view, never beyond its content. Lengths in points. Main thread.

// Scrolls down by the distance, up if it is negative.
void scrollBy(QQuickItem* flickable, double distance);

// Scrolls as the key asks: an arrow by a little, Page Up, Page Down and the space bar by a page,
// Home and End all the way. False if that is none of these keys, or if nothing is scrolled away.
bool scrollByKey(QQuickItem* flickable, const QKeyEvent& key);

// What keys scroll while an item below the root has the keyboard: the flicking view that holds it,
// or else the foremost one that is enabled. Null if not found.
QQuickItem* scrolledByKeys(QQuickItem* focused, QQuickItem* root);

// Scrolls as little as needed to show a rectangle of an item, with the margin above and below. The
// top wins if it is taller than the view.
void scrollToShow(QQuickItem* flickable, const QQuickItem* item, const QRectF& rectangle,
                  double margin);

// Shows the whole item in every flicking view that holds it.
void scrollToVisible(const QQuickItem* item);

}  // namespace tarnwick
