#pragma once

#include <QPointer>
#include <QQuickItem>
#include <vector>

namespace tarnwick {

// Keeps input away from items that something lies over: while it lives they get no touch, mouse,
// wheel or key, and a press under way there is cancelled. Several covers may lie over one item. An
// item may vanish meanwhile. Once nothing covers an item, it is enabled or disabled as it was
// before; enabling it meanwhile takes effect only then. Main thread.
class Cover {
public:
    explicit Cover(const QList<QQuickItem*>& items);
    ~Cover();
    Cover(const Cover&) = delete;
    Cover& operator=(const Cover&) = delete;

private:
    std::vector<QPointer<QQuickItem>> items_;
};

}  // namespace tarnwick
