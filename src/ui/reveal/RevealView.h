#pragma once

#include <QQuickItem>
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

    QQuickItem* frontView() const { return frontView_; }
    // None unless it was prepared.
    QQuickItem* rearView() const { return rearView_; }
    QQuickItem* rightView() const { return rightView_; }
    // The view that the operation replaces the content of; none if it is not there now.
    QQuickItem* slotOf(ChildReplacement operation) const;

    // Makes the side view if it is missing, below the front view, where it stands while the front
    // view is where it is now.
    void prepareRearView();
    void prepareRightView();
    // The side that the position shows lies above the other one.
    void raiseShownSide(RevealPosition position);
    void unloadRearView();
    void unloadRightView();

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
    std::vector<Change> changesFor(double x) const;
    QRectF frontFrame(double x) const;
    void placeFrontViewAt(double x);
    QQuickItem* makeSideView();

    RevealViewController* controller_;
    QQuickItem* frontView_;
    QQuickItem* rearView_ = nullptr;
    QQuickItem* rightView_ = nullptr;
};

}  // namespace tarnwick
