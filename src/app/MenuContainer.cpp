#include "app/MenuContainer.h"

#include <QKeyEvent>
#include <algorithm>

#include "platform/gestures/TapGestureRecognizer.h"
#include "platform/motion/Frames.h"
#include "platform/views/Focus.h"
#include "platform/views/QmlEngine.h"
#include "platform/windows/Settling.h"
#include "ui/reveal/RevealView.h"

namespace tarnwick {

namespace {

constexpr double dimmed = 0.25;  // opacity of the shade beside the open menu

bool isEscape(const QEvent* event) {
    if (event->type() != QEvent::KeyPress)
        return false;
    const auto* key = static_cast<const QKeyEvent*>(event);
    return key->key() == Qt::Key_Escape && !key->isAutoRepeat();
}

}  // namespace

void MenuContainer::viewDidLoad() {
    RevealViewController::viewDidLoad();
    setDelegate(this);
    tapGestureRecognizer();
    makeShade();
    view()->installEventFilter(this);
}

void MenuContainer::makeShade() {
    QQuickItem* front = static_cast<RevealView*>(view())->frontView();
    shade_ = createQmlItem("Shade", front,
                           {{"objectName", "closeMenu"}, {"text", "Close Menu"}, {"z", 1}});
    addFillingSubview(front, shade_);
    connect(shade_, SIGNAL(clicked()), this, SLOT(revealToggle()));
}

bool MenuContainer::eventFilter(QObject* watched, QEvent* event) {
    if (watched != view() || !isEscape(event) || frontViewPosition() != FrontPositionSlidRight)
        return RevealViewController::eventFilter(watched, event);
    if (!isMoving_)
        revealToggle();
    return true;
}

void MenuContainer::revealControllerWillMoveToPosition(Reveal&, RevealPosition) {
    isMoving_ = true;
    focusReason_ = focusReasonIn(view()->window());
    updateInertness();
}

void MenuContainer::revealControllerDidMoveToPosition(Reveal&, RevealPosition position) {
    isMoving_ = false;
    updateInertness();
    if (position == FrontPositionSlidRight)
        focusMenu();
}

void MenuContainer::revealControllerAnimateToPosition(Reveal&, RevealPosition position,
                                                      std::vector<Change>& changes) {
    const double opacity = position == FrontPositionClosed ? 0 : dimmed;
    changes.push_back({shade_, Change::Property::Opacity, opacity});
}

void MenuContainer::revealControllerPanGestureMovedToLocationProgress(Reveal&, double,
                                                                      double progress) {
    applyAtOnce({{shade_, Change::Property::Opacity, dimmed * std::clamp(progress, 0.0, 1.0)}});
}

void MenuContainer::revealControllerDidAddViewControllerForOperationAnimated(
    Reveal&, ViewController*, ChildReplacement operation, Animated) {
    if (operation != ReplaceFront)
        return;
    hasJustArrived_ = true;
    updateInertness();
    arrival_.start(settlingDuration, [this] {
        hasJustArrived_ = false;
        updateInertness();
    });
}

void MenuContainer::updateInertness() {
    const RevealPosition position = frontViewPosition();
    coverFront(isMoving_ || hasJustArrived_ || position != FrontPositionClosed);
    coverMenu(isMoving_ || position != FrontPositionSlidRight);
}

void MenuContainer::coverFront(bool covered) {
    auto* front =
        frontViewController() ? qobject_cast<Stage*>(frontViewController()->view()) : nullptr;
    if (coveredFront_ == (covered ? front : nullptr))
        return;
    if (coveredFront_)
        coveredFront_->uncover();
    coveredFront_ = covered ? front : nullptr;
    if (coveredFront_)
        coveredFront_->cover();
    else if (front != nullptr)
        front->forceActiveFocus(focusReason_);
}

void MenuContainer::coverMenu(bool covered) {
    if (!covered)
        menuCover_.reset();
    else if (!menuCover_ && rearViewController())
        menuCover_ = std::make_unique<Cover>(QList<QQuickItem*>{rearViewController()->view()});
}

void MenuContainer::focusMenu() {
    QQuickItem* row = rearViewController()->view()->nextItemInFocusChain();
    if (row != nullptr && rearViewController()->view()->isAncestorOf(row))
        row->forceActiveFocus(focusReason_);
}

}  // namespace tarnwick
