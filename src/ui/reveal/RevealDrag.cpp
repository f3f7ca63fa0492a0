// How a finger moves a reveal container's front view.
#include "platform/gestures/TapGestureRecognizer.h"
#include "ui/reveal/RevealView.h"
#include "ui/reveal/RevealViewController.h"
#include "ui/reveal/RevealViewControllerPanGestureRecognizer.h"

namespace tarnwick {

RevealViewControllerPanGestureRecognizer* RevealViewController::panGestureRecognizer() {
    if (!panGestureRecognizer_) {
        view();
        panGestureRecognizer_ = std::make_unique<RevealViewControllerPanGestureRecognizer>(
            [this] { handleRevealGesture(); });
        panGestureRecognizer_->setDelegate(this);
        addGestureRecognizer(revealView_->frontView(), panGestureRecognizer_.get());
    }
    return panGestureRecognizer_.get();
}

TapGestureRecognizer* RevealViewController::tapGestureRecognizer() {
    if (!tapGestureRecognizer_) {
        view();
        tapGestureRecognizer_ =
            std::make_unique<TapGestureRecognizer>([this] { handleTapGesture(); });
        tapGestureRecognizer_->setDelegate(this);
        addGestureRecognizer(revealView_->frontView(), tapGestureRecognizer_.get());
    }
    return tapGestureRecognizer_.get();
}

bool RevealViewController::gestureRecognizerShouldBegin(GestureRecognizer& recognizer) {
    return &recognizer == tapGestureRecognizer_.get() ? tapShouldBegin() : panShouldBegin();
}

bool RevealViewController::gestureRecognizerShouldRecognizeSimultaneouslyWith(
    GestureRecognizer& recognizer, GestureRecognizer& other) {
    auto* delegate = delegate_.get();
    if (delegate == nullptr)
        return false;
    if (&recognizer == tapGestureRecognizer_.get())
        return delegate
            ->revealControllerTapGestureRecognizerShouldRecognizeSimultaneouslyWithGestureRecognizer(
                *this, other);
    return delegate
        ->revealControllerPanGestureRecognizerShouldRecognizeSimultaneouslyWithGestureRecognizer(
            *this, other);
}

bool RevealViewController::panShouldBegin() {
    if (delegate_.get() != nullptr &&
        !delegate_.get()->revealControllerPanGestureShouldBegin(*this))
        return false;
    const double translation = panGestureRecognizer_->translation(revealView_).x();
    return dragMayBegin({.from = panGestureRecognizer_->location(revealView_).x() - translation,
                         .translation = translation,
                         .width = revealView_->width(),
                         .borderWidth = draggableBorderWidth,
                         .position = frontViewPosition_,
                         .hasRear = rearViewController_ != nullptr,
                         .hasRight = rightViewController_ != nullptr});
}

bool RevealViewController::tapShouldBegin() {
    const bool nothingToClose = frontViewPosition_ == FrontPositionClosed ||
                                frontViewPosition_ == FrontPositionSlidRightRemoved ||
                                frontViewPosition_ == FrontPositionSlidLeftRemoved;
    if (nothingToClose)
        return false;
    return delegate_.get() == nullptr ||
           delegate_.get()->revealControllerTapGestureShouldBegin(*this);
}

void RevealViewController::handleTapGesture() {
    setFrontViewPosition(FrontPositionClosed, Animated::Yes);
}

void RevealViewController::handleRevealGesture() {
    switch (panGestureRecognizer_->state()) {
        case GestureState::Began:
            return beginDrag();
        case GestureState::Changed:
            return drag();
        case GestureState::Ended:
            return endDrag();
        case GestureState::Cancelled:
            return cancelDrag();
        case GestureState::Possible:
        case GestureState::Failed:
            return;
    }
}

double RevealViewController::frontX() const {
    return revealView_->frontView()->x();
}

RevealGeometry RevealViewController::geometry() const {
    return geometryIn(revealView_->size());
}

void RevealViewController::beginDrag() {
    holdQueue();
    panInitialFrontPosition_ = frontViewPosition_;
    userInteractionOff_ = std::make_unique<Cover>(QList<QQuickItem*>{revealView_});
    revealView_->disableLayout = true;
    catchMovingFront();
    if (auto* delegate = delegate_.get())
        delegate->revealControllerPanGestureBegan(*this);
    reportDrag(&RevealViewControllerDelegate::
                   revealControllerPanGestureBeganFromLocationProgressOverProgress);
}

// It stops where it is, with what it reveals there, and follows the finger from there.
void RevealViewController::catchMovingFront() {
    const double x = frontX();
    const double end = frontLocation(geometry(), panInitialFrontPosition_);
    dragOffset_ = 0;
    if (x == end)
        return;
    const double dragged = dragLocation(geometry(), x, panInitialFrontPosition_);
    dragOffset_ = dragged - end;
    prepareSidesFor(x < 0 ? FrontPositionSlidLeft : FrontPositionSlidRight);
    revealView_->dragFrontViewTo(dragged);
}

void RevealViewController::drag() {
    double x = frontLocation(geometry(), panInitialFrontPosition_) + dragOffset_ +
               panGestureRecognizer_->translation(revealView_).x();
    if (x != 0) {
        const bool towardsRear = x > 0;
        if (!childOf(towardsRear ? ReplaceRear : ReplaceRight))
            x = 0;
        prepareSidesFor(towardsRear ? FrontPositionSlidRight : FrontPositionSlidLeft);
    }
    revealView_->dragFrontViewTo(x);
    reportDrag(&RevealViewControllerDelegate::
                   revealControllerPanGestureMovedToLocationProgressOverProgress);
}

void RevealViewController::prepareSidesFor(RevealPosition position) {
    const auto rightDeployed = deployRight(position);
    const auto rearDeployed = deployRear(position);
    rightDeployed();
    rearDeployed();
    revealView_->raiseShownSide(position);
}

void RevealViewController::restoreUserInteraction() {
    userInteractionOff_.reset();
    if (!userInteractionStore_)
        revealView_->setEnabled(false);
    revealView_->disableLayout = false;
}

void RevealViewController::notifyDragEnded() {
    if (auto* delegate = delegate_.get())
        delegate->revealControllerPanGestureEnded(*this);
    reportDrag(&RevealViewControllerDelegate::
                   revealControllerPanGestureEndedToLocationProgressOverProgress);
}

void RevealViewController::reportDrag(DragReport report) {
    auto* delegate = delegate_.get();
    if (delegate == nullptr)
        return;
    const RevealProgress at = revealProgress(geometry(), frontX());
    (delegate->*report)(*this, frontX(), at.progress, at.overProgress);
}

void RevealViewController::endDrag() {
    const RevealMove move =
        moveOnRelease(geometry(), frontX(), panGestureRecognizer_->velocity(revealView_).x(),
                      quickFlickVelocity, toggleAnimationDuration);
    restoreUserInteraction();
    notifyDragEnded();
    setPosition(move.position, move.duration);
}

// The views go back to where the drag began.
void RevealViewController::cancelDrag() {
    restoreUserInteraction();
    notifyDragEnded();
    setPosition(panInitialFrontPosition_, toggleAnimationDuration);
}

}  // namespace tarnwick
