#include "platform/controllers/TableViewController.h"

namespace tarnwick {

void TableViewController::viewDidLoad() {
    for (int section = 0; section < numberOfSections(); ++section)
        for (int row = 0; row < numberOfRowsInSection(section); ++row)
            cellForRowAtIndexPath({section, row})->setParentItem(rows.get());
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

}  // namespace tarnwick
