#include "platform/gestures/GestureRecognizer.h"

#include <QGuiApplication>
#include <QStyleHints>
#include <algorithm>
#include <cmath>
#include <utility>

namespace tarnwick {

namespace {

// The recognisers of a view, as a child of it: they go with the view.
class Attachments : public QObject {
public:
    explicit Attachments(QQuickItem* view) : QObject(view) {}

    static Attachments* of(const QQuickItem* view) {
        for (QObject* child : view->children())
            if (auto* attachments = dynamic_cast<Attachments*>(child))
                return attachments;
        return nullptr;
    }

    std::vector<QPointer<GestureRecognizer>> recognizers;
};

}  // namespace

bool GestureRecognizerDelegate::gestureRecognizerShouldBegin(GestureRecognizer& recognizer) {
    static_cast<void>(recognizer);
    return true;
}

bool GestureRecognizerDelegate::gestureRecognizerShouldRecognizeSimultaneouslyWith(
    GestureRecognizer& recognizer, GestureRecognizer& other) {
    static_cast<void>(recognizer);
    static_cast<void>(other);
    return false;
}

GestureRecognizer::GestureRecognizer(std::function<void()> action, QObject* parent)
    : QObject(parent), action_(std::move(action)) {}

void GestureRecognizer::setDelegate(GestureRecognizerDelegate* delegate) {
    delegate_.set(delegate);
}

QPointF GestureRecognizer::location(const QQuickItem* view) const {
    return view != nullptr ? view->mapFromScene(touch_.position) : touch_.position;
}

void GestureRecognizer::touchBegan(const Touch& touch) {
    static_cast<void>(touch);
}

void GestureRecognizer::touchMoved(const Touch& touch) {
    static_cast<void>(touch);
}

void GestureRecognizer::touchEnded(const Touch& touch) {
    static_cast<void>(touch);
}

bool GestureRecognizer::isActive() const {
    return state_ == GestureState::Began || state_ == GestureState::Changed;
}

double GestureRecognizer::dragThreshold() {
    return QGuiApplication::styleHints()->startDragDistance();
}

bool GestureRecognizer::isDrag(const QPointF& way) {
    return std::hypot(way.x(), way.y()) > dragThreshold();
}

void GestureRecognizer::start(QQuickItem* view, const QPointF& position) {
    state_ = GestureState::Possible;
    wish_.reset();
    touchedView_ = view;
    start_ = position;
}

void GestureRecognizer::enter(GestureState state) {
    state_ = state;
    if (state == GestureState::Failed || !action_)
        return;
    // A copy, for the action may delete the recogniser.
    const auto action = action_;
    action();
}

void GestureRecognizer::cancel() {
    touchedView_.clear();
    if (isUndecided())
        enter(isActive() ? GestureState::Cancelled : GestureState::Failed);
}

bool GestureRecognizer::shouldBegin() {
    return delegate_.get() == nullptr || delegate_.get()->gestureRecognizerShouldBegin(*this);
}

bool GestureRecognizer::agreesToRunWith(GestureRecognizer& other) {
    return delegate_.get() != nullptr &&
           delegate_.get()->gestureRecognizerShouldRecognizeSimultaneouslyWith(*this, other);
}

void addGestureRecognizer(QQuickItem* view, GestureRecognizer* recognizer) {
    Attachments* attachments = Attachments::of(view);
    if (attachments == nullptr)
        attachments = new Attachments(view);
    auto& recognizers = attachments->recognizers;
    std::erase(recognizers, nullptr);
    if (std::find(recognizers.begin(), recognizers.end(), recognizer) == recognizers.end())
        recognizers.emplace_back(recognizer);
}

void removeGestureRecognizer(QQuickItem* view, GestureRecognizer* recognizer) {
    if (Attachments* attachments = Attachments::of(view))
        std::erase(attachments->recognizers, recognizer);
    if (recognizer->touchedView_ == view)
        recognizer->cancel();
}

std::vector<GestureRecognizer*> gestureRecognizersOf(const QQuickItem* view) {
    std::vector<GestureRecognizer*> recognizers;
    if (const Attachments* attachments = Attachments::of(view))
        for (const auto& recognizer : attachments->recognizers)
            if (recognizer)
                recognizers.push_back(recognizer);
    return recognizers;
}

}  // namespace tarnwick
