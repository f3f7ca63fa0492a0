#include "platform/gestures/HitTest.h"

#include <algorithm>

namespace tarnwick {

namespace {

QList<QQuickItem*> childrenFromTheTop(const QQuickItem* item) {
    QList<QQuickItem*> children = item->childItems();
    std::stable_sort(children.begin(), children.end(),
                     [](const auto* below, const auto* above) { return below->z() < above->z(); });
    std::reverse(children.begin(), children.end());
    return children;
}

}  // namespace

QQuickItem* hitTest(QQuickItem* root, const QPointF& scenePoint) {
    if (!root->isVisible() || !root->isEnabled() || root->opacity() <= 0)
        return nullptr;
    const bool inside = root->contains(root->mapFromScene(scenePoint));
    const bool bounds = root->clip() || root->property(boundsTouchesProperty).toBool();
    if (bounds && !inside)
        return nullptr;
    for (QQuickItem* child : childrenFromTheTop(root)) {
        // A negative z is below the parent's own content.
        if (child->z() < 0 && inside)
            return root;
        if (QQuickItem* hit = hitTest(child, scenePoint))
            return hit;
    }
    return inside ? root : nullptr;
}

}  // namespace tarnwick
