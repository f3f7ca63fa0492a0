#include "platform/controllers/TableViewController.h"

#include <QKeyEvent>
#include <algorithm>
#include <cstddef>
#include <optional>

namespace tarnwick {

namespace {

// Null if the key goes to none.
std::optional<std::ptrdiff_t> placeAfter(std::ptrdiff_t current, int key, std::ptrdiff_t count) {
    switch (key) {
        case Qt::Key_Down:
            return std::min(current + 1, count - 1);
        case Qt::Key_Up:
            return std::max<std::ptrdiff_t>(current - 1, 0);
        case Qt::Key_Home:
            return 0;
        case Qt::Key_End:
            return count - 1;
        default:
            return {};
    }
}

}  // namespace

void TableViewController::viewDidLoad() {
    for (int section = 0; section < numberOfSections(); ++section)
        for (int row = 0; row < numberOfRowsInSection(section); ++row)
            cellForRowAtIndexPath({section, row})->setParentItem(rows.get());
    rows->installEventFilter(this);
}

QQuickItem* TableViewController::dequeueReusableCellWithIdentifier(
    const QString& identifier) const {
    for (QQuickItem* cell : prototypes->findChildren<QQuickItem*>())
        if (cell->property("reuseIdentifier").toString() == identifier)
            return cell;
    throw StoryboardError(
        QStringLiteral("scene \"%1\" has no cell \"%2\"").arg(scene(), identifier));
}

void TableViewController::setSelectionStyle(QQuickItem* cell, CellSelectionStyle style) {
    cell->setProperty("selectionStyle", static_cast<int>(style));
}

std::vector<QQuickItem*> TableViewController::selectableCells() const {
    std::vector<QQuickItem*> cells;
    for (QQuickItem* cell : rows->childItems())
        if (cell->activeFocusOnTab())
            cells.push_back(cell);
    return cells;
}

bool TableViewController::moveFocus(int key) const {
    const auto cells = selectableCells();
    const auto now = std::ranges::find_if(cells, &QQuickItem::hasActiveFocus);
    const auto place = placeAfter(now - cells.begin(), key, std::ssize(cells));
    if (!place || now == cells.end())
        return false;
    cells[static_cast<std::size_t>(*place)]->forceActiveFocus(Qt::TabFocusReason);
    return true;
}

bool TableViewController::eventFilter(QObject* watched, QEvent* event) {
    const bool isKey = event->type() == QEvent::KeyPress;
    return (isKey && moveFocus(static_cast<QKeyEvent*>(event)->key())) ||
           ViewController::eventFilter(watched, event);
}

}  // namespace tarnwick
