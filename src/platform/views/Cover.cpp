#include "platform/views/Cover.h"

namespace tarnwick {

namespace {

constexpr const char* coversProperty = "covers";

void addCovers(QQuickItem* item, int number) {
    const int covers = item->property(coversProperty).toInt() + number;
    item->setProperty(coversProperty, covers);
    item->setEnabled(covers == 0);
}

}  // namespace

Cover::Cover(const QList<QQuickItem*>& items) : items_(items.begin(), items.end()) {
    for (QQuickItem* item : items)
        addCovers(item, 1);
}

Cover::~Cover() {
    for (const auto& item : items_)
        if (item)
            addCovers(item, -1);
}

}  // namespace tarnwick
