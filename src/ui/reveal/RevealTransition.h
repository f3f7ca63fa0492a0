#pragma once

#include <QPointer>
#include <QQuickItem>
#include <functional>
#include <memory>

#include "platform/controllers/ViewController.h"
#include "ui/reveal/RevealGeometry.h"

namespace tarnwick {

// Which child of a reveal container is replaced.
enum ChildReplacement : int { ReplaceRear = 1, ReplaceFront = 2, ReplaceRight = 3 };

// Whether that child is to be seen while the front view is at the position.
bool isSeen(ChildReplacement child, RevealPosition position);

// One replacement that is to be animated: the view it happens in, and who goes and who comes;
// either may be missing.
class ContextTransitionObject {
public:
    using Controller = std::shared_ptr<ViewController>;

    ContextTransitionObject(QQuickItem* containerView, Controller from, Controller to,
                            std::function<void()> completion);

    QQuickItem* containerView() const { return containerView_; }
    // None if there is no such controller.
    QQuickItem* fromView() const { return viewOf(from_); }
    QQuickItem* toView() const { return viewOf(to_); }

    // To be called once when the animation has ended; the replacement is complete however it ended.
    void completeTransition(bool finished);

private:
    static QQuickItem* viewOf(const Controller& controller);

    QPointer<QQuickItem> containerView_;
    Controller from_;
    Controller to_;
    std::function<void()> completion_;
};

// Animates replacements.
class TransitionAnimationController {
public:
    using Context = std::shared_ptr<ContextTransitionObject>;

    virtual ~TransitionAnimationController() = default;

    // In seconds; at 0 the replacement is not animated.
    virtual double transitionDuration(const ContextTransitionObject& context) const = 0;
    virtual void animateTransition(const Context& context) = 0;
};

// Dissolves the old view into the new one, or lets the new one appear where there is no old one.
class DefaultAnimationController : public TransitionAnimationController {
public:
    explicit DefaultAnimationController(double duration) : duration_(duration) {}

    double transitionDuration(const ContextTransitionObject&) const override { return duration_; }
    void animateTransition(const Context& context) override;

private:
    const double duration_;
};

}  // namespace tarnwick
