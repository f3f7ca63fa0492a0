#include "platform/gestures/GestureRecognizer.h"

#include <QGuiApplication>
#include <QStyleHints>
#include <algorithm>
#include <cmath>
#include <utility>

#include "platform/motion/Attachment.h"

namespace tarnwick {

namespace {

// The recognisers of a view.
class Recognizers : public QObject {
public:
    using QObject::QObject;

    std::vector<QPointer<GestureRecognizer>> all;
};

}  // namespace

GestureRecognizer::GestureRecognizer(std::function<void()> action, QObject* parent)
    : QObject(parent), action_(std::move(action)) {}

void GestureRecognizer::setDelegate(const WeakDelegate<GestureRecognizerDelegate>& delegate) {
    delegate_ = delegate;
}

QPointF GestureRecognizer::location(const QQuickItem* view) const {
    return view != nullptr ? view->mapFromScene(touch_.position) : touch_.position;
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
    requested_.reset();
    touchedView_ = view;
    start_ = position;
}

void GestureRecognizer::enter(GestureState state) {
    state_ = state;
    if (state == GestureState::Failed || !action_)
        return;
    // A copy, as the action may delete the recogniser.
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
    auto& recognizers = attachmentOf<Recognizers>(view).all;
    std::erase(recognizers, nullptr);
    if (std::find(recognizers.begin(), recognizers.end(), recognizer) == recognizers.end())
        recognizers.emplace_back(recognizer);
}

std::vector<GestureRecognizer*> gestureRecognizersOf(const QQuickItem* view) {
    std::vector<GestureRecognizer*> alive;
    if (const auto* recognizers = findAttachment<Recognizers>(view))
        for (const auto& recognizer : recognizers->all)
            if (recognizer)
                alive.push_back(recognizer);
    return alive;
}

}  // namespace tarnwick
