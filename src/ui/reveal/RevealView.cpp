#include "ui/reveal/RevealView.h"

#include <QPointerEvent>
#include <QQuickWindow>
#include <utility>

#include "platform/controllers/NavigationBar.h"
#include "platform/controllers/StatusBar.h"
#include "platform/gestures/HitTest.h"
#include "platform/views/Layer.h"
#include "ui/reveal/RevealViewController.h"

namespace tarnwick {

namespace {

void addFrame(std::vector<Change>& changes, QQuickItem* item, const QRectF& frame,
              const RevealLimits& limits) {
    using Property = Change::Property;
    if (item == nullptr)
        return;
    changes.insert(changes.end(), {{item, Property::X, frame.x(), limits.least, limits.most},
                                   {item, Property::Y, frame.y()},
                                   {item, Property::Width, frame.width()},
                                   {item, Property::Height, frame.height()}});
}

// Whether the point of the container's view is inside a child's view that it holds.
bool isInside(const QQuickItem* container, const QQuickItem* view,
              const std::shared_ptr<ViewController>& controller, const QPointF& point) {
    return view != nullptr && controller && controller->isViewLoaded() &&
           view->contains(container->mapToItem(view, point));
}

}  // namespace

RevealView::RevealView(RevealViewController* controller) : controller_(controller) {
    slots_[ReplaceFront] = new QQuickItem(this);
    setFiltersChildMouseEvents(true);
    setProperty(boundsTouchesProperty, true);
    Layer::of(this).setBackgroundColor(Qt::black);
}

void RevealView::prepareSideView(ChildReplacement side) {
    if (slotOf(side) != nullptr)
        return;
    slots_[side] = new QQuickItem(this);
    slots_[side]->stackBefore(frontView());
    applyAtOnce(changesFor(frontView()->x()));
}

void RevealView::unloadSideView(ChildReplacement side) {
    delete std::exchange(slots_[side], nullptr);
}

void RevealView::raiseShownSide(RevealPosition position) {
    if (rearView() == nullptr || rightView() == nullptr)
        return;
    if (position < FrontPositionClosed)
        rightView()->stackAfter(rearView());
    else if (position > FrontPositionClosed)
        rearView()->stackAfter(rightView());
}

RevealGeometry RevealView::geometry() const {
    return controller_->geometryIn(size());
}

QRectF RevealView::frontFrame(double x) const {
    QRectF frame(QPointF(x, 0), size());
    if (controller_->presentFrontViewHierarchically)
        frame.setTop(navigationBarHeight +
                     statusBarAdjustment(statusBarFrame(), mapRectToScene(boundingRect())));
    return frame;
}

std::vector<Change> RevealView::changesFor(double x) const {
    std::vector<Change> changes;
    addFrame(changes, rearView(), rearFrame(geometry(), x), rearLimits(geometry()));
    addFrame(changes, rightView(), rightFrame(geometry(), x), rightLimits(geometry()));
    return changes;
}

std::vector<Change> RevealView::changesOfAll(double x) const {
    std::vector<Change> changes = changesFor(x);
    addFrame(changes, frontView(), frontFrame(x),
             frontLimits(geometry(), rearView() != nullptr, rightView() != nullptr));
    return changes;
}

std::vector<Change> RevealView::layoutChanges() const {
    if (disableLayout)
        return {};
    return changesOfAll(frontLocation(geometry(), controller_->frontViewPosition()));
}

void RevealView::layoutSubviews() {
    applyAtOnce(layoutChanges());
}

void RevealView::dragFrontViewTo(double x) {
    placeFrontViewAt(adjustedDragLocation(geometry(), x, controller_->frontViewPosition()));
}

void RevealView::placeFrontViewAt(double x) {
    applyAtOnce(changesOfAll(x));
}

bool RevealView::contains(const QPointF& point) const {
    if (QQuickItem::contains(point))
        return true;
    return controller_->extendsPointInsideHit &&
           (isInside(this, rearView(), controller_->rearViewController(), point) ||
            isInside(this, frontView(), controller_->frontViewController(), point) ||
            isInside(this, rightView(), controller_->rightViewController(), point));
}

void RevealView::geometryChange(const QRectF& newGeometry, const QRectF& oldGeometry) {
    QQuickItem::geometryChange(newGeometry, oldGeometry);
    if (newGeometry.size() == oldGeometry.size())
        return;
    if (disableLayout)
        placeFrontViewAt(frontView()->x());  // under the finger, in its new size
    else
        layoutSubviews();
}

bool RevealView::childMouseEventFilter(QQuickItem* /*item*/, QEvent* event) {
    if (!event->isPointerEvent())
        return false;
    auto* pointerEvent = static_cast<QPointerEvent*>(event);
    // A child that reaches beyond the bounds is not to be pressed there.
    const bool outside = pointerEvent->isBeginEvent() &&
                         !contains(mapFromScene(pointerEvent->points().first().scenePosition()));
    if (outside)
        event->ignore();
    return outside;
}

}  // namespace tarnwick
