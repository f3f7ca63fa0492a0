#include "ui/reveal/RevealTransition.h"

#include <utility>

#include "platform/motion/Animation.h"

namespace tarnwick {

bool isSeen(ChildReplacement child, RevealPosition position) {
    if (position == FrontPositionNone)
        return false;
    if (child == ReplaceFront)
        return position != FrontPositionSlidLeftRemoved &&
               position != FrontPositionSlidRightRemoved;
    return child == ReplaceRear ? position > FrontPositionClosed : position < FrontPositionClosed;
}

ContextTransitionObject::ContextTransitionObject(QQuickItem* containerView, Controller from,
                                                 Controller to, std::function<void()> completion)
    : containerView_(containerView),
      from_(std::move(from)),
      to_(std::move(to)),
      completion_(std::move(completion)) {}

QQuickItem* ContextTransitionObject::viewOf(const Controller& controller) {
    return controller ? controller->view() : nullptr;
}

void ContextTransitionObject::completeTransition(bool /*finished*/) {
    if (const auto completion = std::exchange(completion_, nullptr))
        completion();
}

void DefaultAnimationController::animateTransition(const Context& context) {
    const auto complete = [context](bool finished) { context->completeTransition(finished); };
    QQuickItem* appearing = context->toView();
    if (appearing == nullptr) {
        QQuickItem* leaving = context->fromView();
        const double opacity = leaving->opacity();
        animate(duration_, Easing::InOut, {{leaving, Change::Property::Opacity, 0.0}},
                [complete, view = QPointer(leaving), opacity](bool finished) {
                    complete(finished);
                    if (view)
                        view->setOpacity(opacity);  // for when it is shown again
                });
        return;
    }
    // The new view lies on the old one: as it appears, the two dissolve.
    const double opacity = appearing->opacity();
    applyAtOnce({{appearing, Change::Property::Opacity, 0.0}});
    animate(duration_, context->fromView() != nullptr ? Easing::InOut : Easing::Out,
            {{appearing, Change::Property::Opacity, opacity}}, complete);
}

}  // namespace tarnwick
