#include "platform/windows/AlertPresenter.h"

#include <QPointer>
#include <algorithm>
#include <utility>

#include "platform/threads/MainThread.h"
#include "platform/views/Focus.h"
#include "platform/views/QmlEngine.h"
#include "platform/views/Stage.h"
#include "platform/windows/AlertView.h"

namespace tarnwick {

namespace {

void tellDismissed(const std::weak_ptr<AlertDelegate>& delegate, const Alert& alert, int index) {
    if (const auto listener = delegate.lock())
        listener->alertDidDismissWithButtonIndex(alert, index);
}

}  // namespace

AlertPresenter::AlertPresenter(Stage& stage, QQuickItem& container)
    : stage_(stage),
      layer_(createQmlItem("AlertLayer", &container)),
      scrim_(layer_->property("scrim").value<QQuickItem*>()),
      pause_(this) {}

AlertPresenter::~AlertPresenter() {
    // Not deleted at once: this may be the end of a presenter in whose alert a button was pressed.
    layer_->setParentItem(nullptr);
    layer_->deleteLater();
    uncoverStage();
}

AlertTicket AlertPresenter::show(Alert alert, std::weak_ptr<AlertDelegate> delegate) {
    AlertTicket ticket;
    {
        const std::lock_guard lock(guard_);
        ticket.number = ++lastNumber_;
        orders_.emplace_back(
            Arrival{.ticket = ticket, .alert = std::move(alert), .delegate = std::move(delegate)});
    }
    carryOutOnMainThread();
    return ticket;
}

void AlertPresenter::dismiss(AlertTicket ticket, int buttonIndex, Animated animated) {
    {
        const std::lock_guard lock(guard_);
        if (!dismissWaiting(ticket, buttonIndex))
            orders_.emplace_back(
                Dismissal{.ticket = ticket, .buttonIndex = buttonIndex, .animated = animated});
    }
    carryOutOnMainThread();
}

bool AlertPresenter::dismissWaiting(AlertTicket ticket, int buttonIndex) {
    for (Order& order : orders_) {
        auto* arrival = std::get_if<Arrival>(&order);
        if (arrival == nullptr || arrival->ticket != ticket)
            continue;
        if (!arrival->dismissedWith)
            arrival->dismissedWith = buttonIndex;
        return true;
    }
    return false;
}

void AlertPresenter::carryOutOnMainThread() {
    performOnMainThread(this, [this] { carryOutAll(); });
}

void AlertPresenter::carryOutAll() {
    const QPointer<AlertPresenter> self = this;
    while (self) {
        const auto order = nextOrder();
        if (!order)
            return;
        std::visit([this](const auto& what) { carryOut(what); }, *order);
    }
}

std::optional<AlertPresenter::Order> AlertPresenter::nextOrder() {
    const std::lock_guard lock(guard_);
    if (orders_.empty())
        return {};
    Order next = std::move(orders_.front());
    orders_.pop_front();
    return next;
}

void AlertPresenter::carryOut(const Arrival& arrival) {
    if (arrival.dismissedWith)
        return tellDismissed(arrival.delegate, arrival.alert, *arrival.dismissedWith);
    const Qt::FocusReason reason = focusReasonIn(layer_->window());
    if (top() != nullptr)
        top()->setVisible(false);
    else
        coverStage();
    auto* view = new AlertView(arrival.alert, layer_);
    const AlertTicket ticket = arrival.ticket;
    connect(view, &AlertView::buttonPressed, this,
            [this, ticket](int buttonIndex) { answer(ticket, buttonIndex); });
    connect(view, &AlertView::focusLost, this, [this, ticket] { keepFocus(ticket); });
    shown_.push_back({.ticket = ticket, .view = view, .delegate = arrival.delegate});
    view->appear();
    view->comeForward(reason);
}

void AlertPresenter::carryOut(const Dismissal& dismissal) {
    const auto found = find(dismissal.ticket);
    if (found == shown_.end())
        return;
    const Qt::FocusReason reason = focusReasonIn(layer_->window());
    const bool wasTop = found->view == top();
    const Shown closing = *found;
    shown_.erase(found);
    ++leaving_;
    if (top() == nullptr) {
        reasonForStage_ = reason;
        fade(0.0, alertLeaveDuration, dismissal.animated);
        settlesStage_ = dismissal.animated == Animated::Yes;
    } else if (wasTop) {
        top()->setVisible(true);
        top()->comeForward(reason);
    }
    const QPointer<AlertPresenter> self = this;
    closing.view->leave(dismissal.animated, [self, closing, index = dismissal.buttonIndex] {
        if (self)
            self->end(closing, index);
    });
}

void AlertPresenter::end(const Shown& closing, int buttonIndex) {
    const Alert alert = closing.view->alert();
    closing.view->setVisible(false);
    closing.view->deleteLater();
    --leaving_;
    if (top() == nullptr && leaving_ == 0)
        giveBackStage();
    const QPointer<AlertPresenter> self = this;
    tellDismissed(closing.delegate, alert, buttonIndex);
    if (self && top() == nullptr)
        emit allWentAway();
}

void AlertPresenter::answer(AlertTicket ticket, int buttonIndex) {
    const auto found = find(ticket);
    if (found == shown_.end())
        return;
    const QPointer<AlertPresenter> self = this;
    const Alert alert = found->view->alert();
    if (const auto listener = found->delegate.lock())
        listener->alertClickedButtonAtIndex(alert, buttonIndex);
    if (self)
        carryOut(
            Dismissal{.ticket = ticket, .buttonIndex = buttonIndex, .animated = Animated::Yes});
}

void AlertPresenter::coverStage() {
    pause_.cancel();
    layer_->setVisible(true);
    fade(1.0, alertAppearDuration, Animated::Yes);
    // The last alert before this one may still be fading out.
    if (!std::exchange(covers_, true))
        stage_.cover();
}

// A second press on a button that has gone was not meant for what lies below.
void AlertPresenter::giveBackStage() {
    if (settlesStage_)
        pause_.start(settlingDuration - alertLeaveDuration, [this] { uncoverStage(); });
    else
        uncoverStage();
}

void AlertPresenter::uncoverStage() {
    if (!std::exchange(covers_, false))
        return;
    layer_->setVisible(false);
    stage_.uncover();
    if (!stage_.isCovered())
        stage_.forceActiveFocus(reasonForStage_);
}

void AlertPresenter::fade(double opacity, double duration, Animated animated) {
    const Change change = {scrim_, Change::Property::Opacity, opacity};
    if (animated == Animated::Yes)
        animate(duration, Easing::Out, {change});
    else
        applyAtOnce({change});
}

// What lies below may ask for the keyboard at any time. Not answered at once: Qt is about to give
// it away.
void AlertPresenter::keepFocus(AlertTicket ticket) {
    performLaterOnMainThread(this, [this, ticket] {
        if (top() != nullptr && shown_.back().ticket == ticket && !top()->hasActiveFocus())
            top()->takeFocus(Qt::OtherFocusReason);
    });
}

std::vector<AlertPresenter::Shown>::iterator AlertPresenter::find(AlertTicket ticket) {
    return std::find_if(shown_.begin(), shown_.end(),
                        [ticket](const Shown& shown) { return shown.ticket == ticket; });
}

}  // namespace tarnwick
