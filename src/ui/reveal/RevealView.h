#pragma once

#include <QQuickItem>
#include <array>
#include <vector>

#include "platform/motion/Animation.h"
#include "ui/reveal/RevealGeometry.h"
#include "ui/reveal/RevealTransition.h"

namespace tarnwick {

class RevealViewController;

// The root view of a reveal container, with the views that its children's views are put into. The
// front view is there from the start; a side view only while a position shows it. Main thread.
class RevealView : public QQuickItem {
    Q_OBJECT

public:
    // The controller owns the view and outlives it.
    explicit RevealView(RevealViewController* controller);

    QQuickItem* frontView() const { return slotOf(ReplaceFront); }
    // Null unless it was prepared.
    QQuickItem* rearView() const { return slotOf(ReplaceRear); }
    QQuickItem* rightView() const { return slotOf(ReplaceRight); }
    // The view whose content the operation replaces; null if there is none at the moment.
    QQuickItem* slotOf(ChildReplacement operation) const { return slots_[operation]; }

    // Makes the view of a side if it is missing, directly below the front view, where it belongs
    // while the front view is where it is now.
    void prepareSideView(ChildReplacement side);
    void unloadSideView(ChildReplacement side);
    // The side that the position shows lies above the other one.
    void raiseShownSide(RevealPosition position);

    // What moves the views to where the controller's position wants them.
    std::vector<Change> layoutChanges() const;
    // Puts them there, unless disableLayout is set.
    void layoutSubviews();
    // The front view follows a finger that has dragged it to x.
    void dragFrontViewTo(double x);

    // Set while a finger drags the front view.
    bool disableLayout = false;

    // Whether the point, in the view's coordinates, is taken: with extendsPointInsideHit also where
    // a child reaches beyond the bounds.
    bool contains(const QPointF& point) const override;

protected:
    void geometryChange(const QRectF& newGeometry, const QRectF& oldGeometry) override;
    bool childMouseEventFilter(QQuickItem* item, QEvent* event) override;

private:
    RevealGeometry geometry() const;
    std::vector<Change> changesFor(double x) const;  // of the side views
    std::vector<Change> changesOfAll(double x) const;
    QRectF frontFrame(double x) const;
    void placeFrontViewAt(double x);

    RevealViewController* controller_;
    std::array<QQuickItem*, ReplaceRight + 1> slots_ = {};  // by operation
};

}  // namespace tarnwick
