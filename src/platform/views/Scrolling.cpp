#include "platform/views/Scrolling.h"

#include <algorithm>
#include <limits>

namespace tarnwick {

namespace {

constexpr double usualMargin = 16.0;
constexpr double lengthOfLine = 40.0;  // that an arrow key scrolls
constexpr double allTheWay = std::numeric_limits<double>::infinity();

bool isFlickable(const QQuickItem* item) {
    return item->inherits("QQuickFlickable");
}

double lengthOfContent(const QQuickItem* flickable) {
    return flickable->property("contentHeight").toDouble();
}

// Zero for other keys.
double distanceFor(const QKeyEvent& key, double lengthOfPage) {
    switch (key.key()) {
        case Qt::Key_Down:
            return lengthOfLine;
        case Qt::Key_Up:
            return -lengthOfLine;
        case Qt::Key_PageDown:
            return lengthOfPage;
        case Qt::Key_PageUp:
            return -lengthOfPage;
        case Qt::Key_Space:
            return key.modifiers().testFlag(Qt::ShiftModifier) ? -lengthOfPage : lengthOfPage;
        case Qt::Key_Home:
            return -allTheWay;
        case Qt::Key_End:
            return allTheWay;
        default:
            return 0;
    }
}

// The one that is painted last.
QQuickItem* foremostFlickable(QQuickItem* item) {
    if (!item->isVisible() || !item->isEnabled())
        return nullptr;
    if (isFlickable(item))
        return item;
    auto children = item->childItems();
    std::ranges::stable_sort(children, {}, &QQuickItem::z);
    for (auto child = children.crbegin(); child != children.crend(); ++child)
        if (QQuickItem* found = foremostFlickable(*child))
            return found;
    return nullptr;
}

}  // namespace

void scrollBy(QQuickItem* flickable, double distance) {
    if (distance == 0)
        return;
    const double wanted = flickable->property("contentY").toDouble() + distance;
    const double highest = lengthOfContent(flickable) - flickable->height();
    flickable->setProperty("contentY", std::clamp(wanted, 0.0, std::max(highest, 0.0)));
}

bool scrollByKey(QQuickItem* flickable, const QKeyEvent& key) {
    const double distance = distanceFor(key, flickable->height() - lengthOfLine);
    if (distance == 0 || lengthOfContent(flickable) <= flickable->height())
        return false;
    scrollBy(flickable, distance);
    return true;
}

QQuickItem* scrolledByKeys(QQuickItem* focused, QQuickItem* root) {
    for (QQuickItem* item = focused; item != nullptr && item != root; item = item->parentItem())
        if (isFlickable(item))
            return item;
    return foremostFlickable(root);
}

void scrollToShow(QQuickItem* flickable, const QQuickItem* item, const QRectF& rectangle,
                  double margin) {
    const QRectF shown = item->mapRectToItem(flickable, rectangle);
    const double hiddenBelow = shown.bottom() + margin - flickable->height();
    scrollBy(flickable, std::min(std::max(hiddenBelow, 0.0), shown.top() - margin));
}

void scrollToVisible(const QQuickItem* item) {
    for (QQuickItem* parent = item->parentItem(); parent != nullptr; parent = parent->parentItem())
        if (isFlickable(parent))
            scrollToShow(parent, item, item->boundingRect(), usualMargin);
}

}  // namespace tarnwick
