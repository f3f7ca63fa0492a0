#include "platform/motion/Animation.h"

#include <QEasingCurve>
#include <QVariantAnimation>
#include <algorithm>
#include <cmath>
#include <memory>
#include <utility>

namespace tarnwick {

namespace {

// The part of the distance that is left when a spring counts as resting.
constexpr double rest = 0.001;

double valueOf(const QQuickItem& item, Change::Property property) {
    switch (property) {
        case Change::Property::Opacity:
            return item.opacity();
        case Change::Property::Scale:
            return item.scale();
        case Change::Property::X:
            return item.x();
        case Change::Property::Y:
            return item.y();
        case Change::Property::Width:
            return item.width();
        case Change::Property::Height:
            return item.height();
    }
    return 0.0;
}

void setValue(QQuickItem& item, Change::Property property, double value) {
    switch (property) {
        case Change::Property::Opacity:
            return item.setOpacity(value);
        case Change::Property::Scale:
            return item.setScale(value);
        case Change::Property::X:
            return item.setX(value);
        case Change::Property::Y:
            return item.setY(value);
        case Change::Property::Width:
            return item.setWidth(value);
        case Change::Property::Height:
            return item.setHeight(value);
    }
}

double easedPart(Easing easing, double timePart) {
    const auto curve = easing == Easing::InOut ? QEasingCurve::InOutQuad : QEasingCurve::OutQuad;
    return QEasingCurve(curve).valueForProgress(timePart);
}

// The frequency at which a critically damped spring comes to rest in the duration.
double restFrequency(double duration) {
    constexpr double restingPhase = 9.233;  // where (1 + p) e^-p equals `rest`
    return restingPhase / duration;
}

// The part of the distance that is left after the seconds, for a spring that starts at 1 with the
// velocity towards 0.
double springRemainder(const Spring& spring, double seconds, double duration) {
    const double ratio = std::clamp(spring.dampingRatio, 0.01, 1.0);
    const double frequency = restFrequency(duration);
    const double decay = std::exp(-frequency * seconds);
    if (ratio == 1.0)
        return decay * (1.0 + (frequency - spring.initialVelocity) * seconds);
    const double swing = frequency / ratio * std::sqrt(1.0 - ratio * ratio);
    return decay * (std::cos(swing * seconds) +
                    (frequency - spring.initialVelocity) / swing * std::sin(swing * seconds));
}

// The changes of one call; completed when the last of them is over.
struct Group {
    explicit Group(Completion whenDone) : completion(std::move(whenDone)) {}
    Group(const Group&) = delete;
    Group& operator=(const Group&) = delete;
    ~Group() {
        if (completion)
            completion(finished);
    }

    Completion completion;
    bool finished = true;  // false if one was taken over or its item deleted
};

QString nameOf(Change::Property property) {
    return QStringLiteral("motion %1").arg(static_cast<int>(property));
}

// Animates one property of one item: the item's child, named after the property.
class Motion : public QVariantAnimation {
public:
    Motion(const Motion&) = delete;
    Motion& operator=(const Motion&) = delete;

    Motion(const Change& change, double seconds, const Course& course, std::shared_ptr<Group> group)
        : QVariantAnimation(change.item),
          change_(change),
          from_(valueOf(*change.item, change.property)),
          seconds_(seconds),
          course_(course),
          group_(std::move(group)) {
        setObjectName(nameOf(change.property));
        setStartValue(0.0);
        setEndValue(1.0);
        setDuration(static_cast<int>(std::lround(seconds * 1000.0)));
        connect(this, &QVariantAnimation::finished, this, [this] { leave(); });
    }

    ~Motion() override {
        if (group_)
            group_->finished = false;
    }

    // The value stays where it is. The group is completed when its last reference is dropped.
    std::shared_ptr<Group> leave() {
        stop();
        setObjectName({});
        deleteLater();
        return std::move(group_);
    }

protected:
    void updateCurrentValue(const QVariant& timePart) override {
        const double part = courseProgress(course_, timePart.toDouble(), seconds_);
        const double value = part == 1.0 ? change_.target : from_ + (change_.target - from_) * part;
        // From beyond a limit it comes back without a jump.
        setValue(*change_.item, change_.property,
                 std::clamp(value, std::min(change_.least, from_), std::max(change_.most, from_)));
    }

private:
    const Change change_;
    const double from_;
    const double seconds_;
    const Course course_;
    std::shared_ptr<Group> group_;
};

// Null if none was running.
std::shared_ptr<Group> endMotion(const Change& change) {
    auto* running = change.item->findChild<QVariantAnimation*>(nameOf(change.property),
                                                               Qt::FindDirectChildrenOnly);
    if (running == nullptr)
        return nullptr;
    auto group = static_cast<Motion*>(running)->leave();
    if (group)
        group->finished = false;
    return group;
}

}  // namespace

double courseProgress(const Course& course, double timePart, double duration) {
    if (const auto* easing = std::get_if<Easing>(&course))
        return easedPart(*easing, timePart);
    if (timePart >= 1.0)
        return 1.0;
    return 1.0 - springRemainder(std::get<Spring>(course), timePart * duration, duration);
}

void animate(double duration, const Course& course, const std::vector<Change>& changes,
             Completion completion) {
    const auto group = std::make_shared<Group>(std::move(completion));
    // Completed last, as completions may start the next animation.
    std::vector<std::shared_ptr<Group>> overtaken;
    for (const Change& change : changes) {
        overtaken.push_back(endMotion(change));
        if (!overtaken.back() && valueOf(*change.item, change.property) == change.target)
            continue;
        (new Motion(change, duration, course, group))->start();
    }
}

void applyAtOnce(const std::vector<Change>& changes) {
    std::vector<std::shared_ptr<Group>> overtaken;
    for (const Change& change : changes) {
        overtaken.push_back(endMotion(change));
        setValue(*change.item, change.property, change.target);
    }
}

}  // namespace tarnwick
