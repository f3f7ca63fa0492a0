#include "platform/views/Cover.h"

#include <utility>

#include "platform/motion/Attachment.h"

namespace tarnwick {

namespace {

// The covers over one item.
class Covers : public QObject {
public:
    explicit Covers(QQuickItem* item) : QObject(item), item_(item) {
        connect(item, &QQuickItem::enabledChanged, this, [this] { disable(); });
    }

    void add() {
        ++number_;
        disable();
    }
    void remove() {
        if (--number_ == 0 && std::exchange(isDisabled_, false))
            item_->setEnabled(true);
    }

private:
    // An item that is disabled already is left alone. If it was only because of its parent, it is
    // heard of when that is enabled.
    void disable() {
        if (number_ == 0 || !item_->isEnabled())
            return;
        isDisabled_ = true;
        item_->setEnabled(false);
    }

    QQuickItem* const item_;
    int number_ = 0;
    bool isDisabled_ = false;  // by its covers
};

}  // namespace

Cover::Cover(const QList<QQuickItem*>& items) : items_(items.begin(), items.end()) {
    for (QQuickItem* item : items)
        attachmentOf<Covers>(item).add();
}

Cover::~Cover() {
    for (const auto& item : items_)
        if (item)
            attachmentOf<Covers>(item.data()).remove();
}

}  // namespace tarnwick
