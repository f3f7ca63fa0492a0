// How a reveal container's children are replaced.
#include <utility>

#include "platform/controllers/StatusBar.h"
#include "platform/motion/Frames.h"
#include "ui/reveal/RevealView.h"
#include "ui/reveal/RevealViewController.h"

namespace tarnwick {

namespace {

// A flicking view begins below the status bar.
void adjustScrollInsets(const ViewController& controller, QQuickItem* view, double statusBar) {
    if (!controller.automaticallyAdjustsScrollViewInsets || !view->inherits("QQuickFlickable"))
        return;
    view->setProperty("topMargin", statusBar);
    for (const char* margin : {"leftMargin", "bottomMargin", "rightMargin"})
        view->setProperty(margin, 0);
}

}  // namespace

void RevealViewController::setRearViewController(const Controller& controller, Animated animated) {
    performTransitionOperation(ReplaceRear, controller, animated);
}

void RevealViewController::setFrontViewController(const Controller& controller, Animated animated) {
    performTransitionOperation(ReplaceFront, controller, animated);
}

void RevealViewController::setRightViewController(const Controller& controller, Animated animated) {
    performTransitionOperation(ReplaceRight, controller, animated);
}

void RevealViewController::performTransitionOperation(ChildReplacement operation,
                                                      const Controller& controller,
                                                      Animated animated) {
    if (!isViewLoaded()) {
        replace(operation, controller, Animated::No, [] {});
        return;
    }
    enqueue([this, operation, controller, animated] {
        replace(operation, controller, animated, [this] { dequeue(); });
    });
}

void RevealViewController::pushFrontViewController(const Controller& controller,
                                                   Animated animated) {
    if (!isViewLoaded() || animated == Animated::No) {
        setFrontViewController(controller);
        return;
    }
    const RevealMove leg = firstLegOfPush(frontViewPosition_, toggleAnimationDuration);
    enqueue([this, leg] { setPosition(leg.position, leg.duration); });
    setFrontViewController(controller);
    enqueue(
        [this, duration = toggleAnimationDuration] { setPosition(FrontPositionClosed, duration); });
}

RevealViewController::Controller& RevealViewController::childOf(ChildReplacement operation) {
    if (operation == ReplaceRear)
        return rearViewController_;
    return operation == ReplaceFront ? frontViewController_ : rightViewController_;
}

void RevealViewController::replace(ChildReplacement operation, const Controller& controller,
                                   Animated animated, const Step& whenDone) {
    if (auto* delegate = delegate_.get())
        delegate->revealControllerWillAddViewControllerForOperationAnimated(*this, controller.get(),
                                                                            operation, animated);
    const Controller old = std::exchange(childOf(operation), controller);
    if (isViewLoaded() && operation != ReplaceFront && controller)
        prepareLateSide(operation);
    QQuickItem* slot = isViewLoaded() ? revealView_->slotOf(operation) : nullptr;
    const Step completion = [this, self = weak_from_this(), operation, controller, animated,
                             whenDone, finish = changeOver(old, controller, slot)] {
        finish();
        if (auto* delegate = delegate_.get())
            delegate->revealControllerDidAddViewControllerForOperationAnimated(
                *this, controller.get(), operation, animated);
        whenDone();
    };
    if (animated == Animated::Yes)
        animateReplacement(operation, old, controller, completion);
    else
        completion();
}

void RevealViewController::prepareLateSide(ChildReplacement side) {
    RevealPosition& current = side == ReplaceRear ? rearViewPosition_ : rightViewPosition_;
    const RevealPosition position =
        side == ReplaceRear ? rearPosition(frontViewPosition_) : frontViewPosition_;
    if (!isSeen(side, position) || isSeen(side, current))
        return;
    current = position;
    revealView_->prepareSideView(side);
    revealView_->raiseShownSide(frontViewPosition_);
}

RevealViewController::Step RevealViewController::changeOver(const Controller& from,
                                                            const Controller& to,
                                                            QQuickItem* slot) {
    if (from == to)
        return [] {};
    if (to)
        addChildViewController(to);
    deploy(to, slot);
    if (from)
        from->willMoveToParentViewController(nullptr);
    return [this, from, to] {
        undeploy(from);
        if (from)
            from->removeFromParentViewController();
        if (to)
            to->didMoveToParentViewController(this);
    };
}

void RevealViewController::animateReplacement(ChildReplacement operation, const Controller& from,
                                              const Controller& to, const Step& completion) {
    std::shared_ptr<TransitionAnimationController> animator;
    if (auto* delegate = delegate_.get())
        animator =
            delegate
                ->revealControllerAnimationControllerForOperationFromViewControllerToViewController(
                    *this, operation, from.get(), to.get());
    if (!animator)
        animator = std::make_shared<DefaultAnimationController>(replaceViewAnimationDuration);
    const auto guarded = [self = weak_from_this(), animator, completion] {
        if (!self.expired())
            completion();
    };
    const auto context = std::make_shared<ContextTransitionObject>(revealView_->slotOf(operation),
                                                                   from, to, guarded);
    const bool visible = context->containerView() != nullptr && from != to;
    if (visible && animator->transitionDuration(*context) > 0)
        animator->animateTransition(context);
    else
        completion();
}

void RevealViewController::deploy(const Controller& controller, QQuickItem* slot) const {
    if (!controller || slot == nullptr)
        return;
    QQuickItem* view = controller->view();
    adjustScrollInsets(*controller, view,
                       statusBarAdjustment(statusBarFrame(), revealView_->mapRectToScene(
                                                                 revealView_->boundingRect())));
    addFillingSubview(slot, view);
}

void RevealViewController::undeploy(const Controller& controller) {
    if (controller && controller->isViewLoaded())
        removeFromSuperview(controller->view());
}

}  // namespace tarnwick
