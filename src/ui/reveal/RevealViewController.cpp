#include "ui/reveal/RevealViewController.h"

#include <QGuiApplication>
#include <QScreen>
#include <algorithm>
#include <utility>

#include "platform/gestures/TapGestureRecognizer.h"
#include "platform/views/Layer.h"
#include "ui/reveal/RevealView.h"
#include "ui/reveal/RevealViewControllerPanGestureRecognizer.h"

namespace tarnwick {

RevealViewController::RevealViewController() = default;

RevealViewController::RevealViewController(const Controller& rearViewController,
                                           const Controller& frontViewController)
    : RevealViewController() {
    setRearViewController(rearViewController);
    setFrontViewController(frontViewController);
}

RevealViewController::~RevealViewController() = default;

void RevealViewController::loadView() {
    loadStoryboardControllers();
    revealView_ = new RevealView(this);
    revealView_->setSize(QGuiApplication::primaryScreen()->size());
    revealView_->setClip(clipsViewsToBounds_);
    setView(revealView_);
    reloadShadow();
    // From nowhere, so that every child is put into its view.
    const RevealPosition position = std::exchange(frontViewPosition_, FrontPositionNone);
    rearViewPosition_ = FrontPositionNone;
    rightViewPosition_ = FrontPositionNone;
    setPosition(position, 0);
}

void RevealViewController::loadStoryboardControllers() {
    if (!storyboard() || rearViewController_)
        return;
    for (const char* identifier :
         {segueRearIdentifier, segueFrontIdentifier, segueRightIdentifier}) {
        try {
            performSegue(identifier);
        } catch (const MissingSegue&) {
            continue;  // a container need not have all three
        }
    }
}

void RevealViewController::setFrontViewShadowRadius(double radius) {
    frontViewShadow_.radius = radius;
    reloadShadow();
}

void RevealViewController::setFrontViewShadowOffset(const QSizeF& offset) {
    frontViewShadow_.offset = offset;
    reloadShadow();
}

void RevealViewController::setFrontViewShadowOpacity(double opacity) {
    frontViewShadow_.opacity = opacity;
    reloadShadow();
}

void RevealViewController::setFrontViewShadowColor(const QColor& color) {
    frontViewShadow_.color = color;
    reloadShadow();
}

void RevealViewController::reloadShadow() {
    if (isViewLoaded())
        Layer::of(revealView_->frontView()).setShadow(frontViewShadow_);
}

void RevealViewController::setClipsViewsToBounds(bool clips) {
    clipsViewsToBounds_ = clips;
    if (isViewLoaded())
        revealView_->setClip(clips);
}

// Moves.

void RevealViewController::setFrontViewPosition(RevealPosition position, Animated animated) {
    if (!isViewLoaded()) {
        frontViewPosition_ = position;
        rearViewPosition_ = position;
        rightViewPosition_ = position;
        return;
    }
    const double duration = animated == Animated::Yes ? toggleAnimationDuration : 0;
    enqueue([this, position, duration] { setPosition(position, duration); });
}

void RevealViewController::revealToggleAnimated(Animated animated) {
    const bool closed = frontViewPosition_ < FrontPositionSlidRight;
    setFrontViewPosition(closed ? FrontPositionSlidRight : FrontPositionClosed, animated);
}

void RevealViewController::rightRevealToggleAnimated(Animated animated) {
    const bool open = frontViewPosition_ < FrontPositionClosed;
    setFrontViewPosition(open ? FrontPositionClosed : FrontPositionSlidLeft, animated);
}

void RevealViewController::enqueue(Step block) {
    animationQueue_.push_front(std::move(block));
    if (animationQueue_.size() == 1)
        Step(animationQueue_.back())();
}

void RevealViewController::dequeue() {
    if (animationQueue_.empty())
        return;
    animationQueue_.pop_back();
    if (!animationQueue_.empty())
        Step(animationQueue_.back())();
}

void RevealViewController::holdQueue() {
    // Behind what runs now, and before what waits.
    animationQueue_.insert(
        animationQueue_.empty() ? animationQueue_.end() : animationQueue_.end() - 1, [] {});
}

void RevealViewController::setPosition(RevealPosition position, double duration) {
    const auto rearDeployed = deployRear(position);
    const auto rightDeployed = deployRight(position);
    const auto frontDeployed = deployFront(position);
    revealView_->raiseShownSide(position);
    const auto changes = animationStep(duration);
    const auto complete = [this, self = weak_from_this(), rearDeployed, rightDeployed,
                           frontDeployed](bool) {
        if (self.expired())
            return;  // the views go with the container
        rearDeployed();
        rightDeployed();
        frontDeployed();
        dequeue();
    };
    if (duration > 0) {
        animate(
            toggleAnimationType == RevealToggleAnimationSpring ? toggleAnimationDuration : duration,
            course(duration), changes, complete);
    } else {
        applyAtOnce(changes);
        complete(true);
    }
}

Course RevealViewController::course(double duration) const {
    if (toggleAnimationType == RevealToggleAnimationSpring)
        return Spring{.dampingRatio = springDampingRatio, .initialVelocity = 1 / duration};
    return Easing::Out;
}

// What there is to animate; without a duration the layout is there at once.
std::vector<Change> RevealViewController::animationStep(double duration) {
    emit statusBarAppearanceUpdateNeeded();
    std::vector<Change> changes = revealView_->layoutChanges();
    if (duration <= 0)
        applyAtOnce(changes);
    if (auto* delegate = delegate_.get())
        delegate->revealControllerAnimateToPosition(*this, frontViewPosition_, changes);
    return changes;
}

RevealViewController::Step RevealViewController::deployRear(RevealPosition position) {
    return deploySide(ReplaceRear, rearViewPosition_, rearPosition(position));
}

// Beside a hierarchical front the menu is always seen.
RevealPosition RevealViewController::rearPosition(RevealPosition position) const {
    return presentFrontViewHierarchically ? FrontPositionSlidRight : position;
}

RevealViewController::Step RevealViewController::deployRight(RevealPosition position) {
    return deploySide(ReplaceRight, rightViewPosition_, position);
}

RevealViewController::Step RevealViewController::deploySide(ChildReplacement side,
                                                            RevealPosition& current,
                                                            RevealPosition position) {
    const Controller& controller = childOf(side);
    if (!controller && isSeen(side, position))
        position = FrontPositionClosed;
    const bool wasShown = isSeen(side, std::exchange(current, position));
    if (wasShown == isSeen(side, position))
        return [] {};
    if (wasShown)
        return [this, side, controller, &current] {
            if (isSeen(side, current))
                return;  // a finger has brought it back meanwhile
            undeploy(controller);
            revealView_->unloadSideView(side);
        };
    revealView_->prepareSideView(side);
    deploy(controller, revealView_->slotOf(side));
    return [] {};
}

RevealViewController::Step RevealViewController::deployFront(RevealPosition position) {
    const bool leadsNowhere = (!rightViewController_ && position < FrontPositionClosed) ||
                              (!rearViewController_ && position > FrontPositionClosed);
    if (leadsNowhere)
        position = FrontPositionClosed;
    const bool changes = position != frontViewPosition_;
    if (changes && delegate_.get() != nullptr)
        delegate_.get()->revealControllerWillMoveToPosition(*this, position);
    const bool wasShown = isSeen(ReplaceFront, std::exchange(frontViewPosition_, position));
    if (isSeen(ReplaceFront, position) && !wasShown)
        deploy(frontViewController_, revealView_->frontView());
    const bool disappears = wasShown && !isSeen(ReplaceFront, position);
    return [this, controller = frontViewController_, disappears, changes, position] {
        if (disappears && !isSeen(ReplaceFront, frontViewPosition_))
            undeploy(controller);
        if (changes && delegate_.get() != nullptr)
            delegate_.get()->revealControllerDidMoveToPosition(*this, position);
    };
}

// Status bar.

ViewController* RevealViewController::childForStatusBarStyle() const {
    if (frontViewPosition_ == FrontPositionClosed)
        return frontViewController_.get();
    const auto& side =
        frontViewPosition_ > FrontPositionClosed ? rearViewController_ : rightViewController_;
    return side.get();
}

ViewController* RevealViewController::childForStatusBarHidden() const {
    return childForStatusBarStyle();
}

}  // namespace tarnwick
