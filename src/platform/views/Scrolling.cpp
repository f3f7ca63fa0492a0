#include "platform/views/Scrolling.h"

#include <algorithm>

namespace tarnwick {

namespace {

constexpr double usualMargin = 16.0;

}  // namespace

void scrollBy(QQuickItem* flickable, double distance) {
    if (distance == 0)
        return;
    const double wanted = flickable->property("contentY").toDouble() + distance;
    const double highest = flickable->property("contentHeight").toDouble() - flickable->height();
    flickable->setProperty("contentY", std::clamp(wanted, 0.0, std::max(highest, 0.0)));
}

void scrollToShow(QQuickItem* flickable, const QQuickItem* item, const QRectF& rectangle,
                  double margin) {
    const QRectF shown = item->mapRectToItem(flickable, rectangle);
    const double hiddenBelow = shown.bottom() + margin - flickable->height();
    scrollBy(flickable, std::min(std::max(hiddenBelow, 0.0), shown.top() - margin));
}

void scrollToVisible(const QQuickItem* item) {
    for (QQuickItem* parent = item->parentItem(); parent != nullptr; parent = parent->parentItem())
        if (parent->inherits("QQuickFlickable"))
            scrollToShow(parent, item, item->boundingRect(), usualMargin);
}

}  // namespace tarnwick
