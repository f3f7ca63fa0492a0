#include "ui/hud/ProgressHUD.h"

#include <limits>
#include <utility>

#include "platform/threads/MainThread.h"
#include "platform/threads/PlatformQueues.h"
#include "platform/views/Accessibility.h"

namespace tarnwick {

namespace {

constexpr double animationDuration = 0.3;
constexpr double hiddenOpacity = 0.01;  // at the end of an animated hide
constexpr double smallScale = 0.5;
constexpr double largeScale = 1.5;
constexpr double depth = 1.0;  // above what is added to the view later, too

QRectF boundsOf(const QQuickItem* view) {
    if (view == nullptr)
        qFatal("View must not be nil.");
    return {QPointF(0, 0), view->size()};
}

// Where a HUD that zooms comes from, and where it goes.
double scaleBefore(ProgressHUD::AnimationType type) {
    if (type == ProgressHUD::AnimationFade)
        return 1.0;
    return type == ProgressHUD::AnimationZoomUp ? smallScale : largeScale;
}

double scaleAfter(ProgressHUD::AnimationType type) {
    if (type == ProgressHUD::AnimationFade)
        return 1.0;
    return type == ProgressHUD::AnimationZoomUp ? largeScale : smallScale;
}

void place(QQuickItem* item, const QRectF& frame) {
    item->setPosition(frame.topLeft());
    item->setSize(frame.size());
}

}  // namespace

ProgressHUD::ProgressHUD(const QRectF& frame)
    : InputBlocker(nullptr),
      box_(new ProgressHUDBox(this)),
      label_(new LabelView(this)),
      detailsLabel_(new LabelView(this)),
      indicator_(this),
      graceTimer_(new Pause(this)),
      minShowTimer_(new Pause(this)),
      sinceShown_(new Stopwatch(this)) {
    place(this, frame);
    setZ(depth);
    QQuickItem::setOpacity(0);
    setVisible(false);
    label_->setLines(LabelView::Lines::Unwrapped);
    rebuildIndicator();
    applyTexts();
}

ProgressHUD::ProgressHUD(QQuickItem* view) : ProgressHUD(boundsOf(view)) {}

ProgressHUD::ProgressHUD(QQuickWindow* window)
    : ProgressHUD(window != nullptr ? window->contentItem() : nullptr) {}

ProgressHUD::~ProgressHUD() = default;

ProgressHUD* ProgressHUD::showHUDAddedTo(QQuickItem* view, Animated animated) {
    auto* hud = new ProgressHUD(view);
    hud->setRemoveFromSuperViewOnHide(true);
    hud->setParent(view);
    hud->setParentItem(view);
    hud->show(animated);
    return hud;
}

bool ProgressHUD::hideHUDForView(QQuickItem* view, Animated animated) {
    ProgressHUD* hud = HUDForView(view);
    if (hud == nullptr)
        return false;
    hud->setRemoveFromSuperViewOnHide(true);
    hud->hide(animated);
    return true;
}

int ProgressHUD::hideAllHUDsForView(QQuickItem* view, Animated animated) {
    const auto huds = allHUDsForView(view);
    for (ProgressHUD* hud : huds) {
        hud->setRemoveFromSuperViewOnHide(true);
        hud->hide(animated);
    }
    return static_cast<int>(huds.size());
}

ProgressHUD* ProgressHUD::HUDForView(QQuickItem* view) {
    const auto huds = allHUDsForView(view);
    return huds.empty() ? nullptr : huds.back();
}

std::vector<ProgressHUD*> ProgressHUD::allHUDsForView(QQuickItem* view) {
    std::vector<ProgressHUD*> huds;
    for (QQuickItem* child : view->childItems())
        if (auto* hud = qobject_cast<ProgressHUD*>(child))
            huds.push_back(hud);
    return huds;
}

// Showing and hiding.

void ProgressHUD::show(Animated animated) {
    useAnimation_ = animated;
    finished_ = false;
    if (graceTime() <= 0) {
        showNow();
        return;
    }
    graceTimer_->start(graceTime(), [this] {
        if (taskInProgress())
            showNow();
    });
}

void ProgressHUD::showNow() {
    minShowTimer_->cancel();  // which would hide it
    setVisible(true);
    coverSiblings();
    polish();
    sinceShown_->start();
    const bool animated = useAnimation_ == Animated::Yes;
    applyAtOnce({{this, Change::Property::Scale, animated ? scaleBefore(animationType()) : 1.0}});
    const std::vector<Change> changes = {{this, Change::Property::Opacity, 1.0},
                                         {this, Change::Property::Scale, 1.0}};
    if (animated)
        animate(animationDuration, Easing::InOut, changes);
    else
        applyAtOnce(changes);
}

// What lies under the HUD cannot be pressed by keys either.
void ProgressHUD::coverSiblings() {
    QList<QQuickItem*> siblings;
    if (parentItem() != nullptr)
        siblings = parentItem()->childItems();
    siblings.removeIf([](QQuickItem* item) { return qobject_cast<ProgressHUD*>(item) != nullptr; });
    cover_ = std::make_unique<Cover>(siblings);
}

void ProgressHUD::hide(Animated animated) {
    useAnimation_ = animated;
    const double missing = minShowTime() - sinceShown_->seconds();
    if (isShown() && minShowTime() > 0 && missing > 0)
        minShowTimer_->start(missing, [this] { hideNow(); });
    else
        hideNow();
}

void ProgressHUD::hideAfterDelay(Animated animated, double delay) {
    auto* pause = new Pause(this);
    delayedHides_.push_back(pause);
    pause->start(delay, [this, pause, animated] {
        std::erase(delayedHides_, pause);
        pause->deleteLater();
        hide(animated);
    });
}

void ProgressHUD::hideNow() {
    const bool fades = useAnimation_ == Animated::Yes && isShown();
    sinceShown_->stop();
    if (!fades) {
        finish();
        return;
    }
    animate(animationDuration, Easing::InOut,
            {{this, Change::Property::Opacity, hiddenOpacity},
             {this, Change::Property::Scale, scaleAfter(animationType())}},
            [this, hud = QPointer(this)](bool finished) {
                // Shown again meanwhile, or gone with its view: then there is nothing to finish.
                if (finished && hud)
                    finish();
            });
}

void ProgressHUD::finish() {
    finished_ = true;
    ++showing_;
    endTimers();
    applyAtOnce({{this, Change::Property::Opacity, 0.0}, {this, Change::Property::Scale, 1.0}});
    setVisible(false);
    cover_.reset();
    if (removeFromSuperViewOnHide())
        setParentItem(nullptr);
    const QPointer<ProgressHUD> hud = this;
    if (const Block completion = takeCompletionBlock())
        completion();
    if (hud && delegate() != nullptr)
        delegate()->hudWasHidden(this);
    if (hud)
        deleteIfDone();
}

void ProgressHUD::endTimers() {
    graceTimer_->cancel();
    minShowTimer_->cancel();
    for (Pause* delayed : std::exchange(delayedHides_, {})) {
        delayed->cancel();
        delayed->deleteLater();
    }
}

// Unless it was shown again when it had been hidden, or a task may still use it.
void ProgressHUD::deleteIfDone() {
    if (finished_ && removeFromSuperViewOnHide() && parent() != nullptr)
        deleteLater();
}

// Bound tasks.

void ProgressHUD::showWhileExecuting(Block method, Animated animated) {
    run(std::move(method), &TaskQueues::runInBackground, PlatformQueues::ofApplication());
    show(animated);
}

void ProgressHUD::showAnimatedWhileExecutingBlock(Animated animated, Block block,
                                                  TaskQueues* queues, Block completion) {
    setCompletionBlock(std::move(completion));
    run(std::move(block), &TaskQueues::dispatchToGlobalQueue,
        queues != nullptr ? *queues : PlatformQueues::ofApplication());
    show(animated);
}

void ProgressHUD::run(Block block, void (TaskQueues::*start)(Block), TaskQueues& queues) {
    setTaskInProgress(true);
    keepWhileTasksRun();
    const Block whenDone = [hud = QPointer(this), task = ++task_, showing = showing_] {
        if (hud)
            hud->cleanUp(task, showing);
    };
    (queues.*start)([block = std::move(block), whenDone, &queues] {
        block();
        queues.dispatchToMainQueue(whenDone);
    });
}

void ProgressHUD::keepWhileTasksRun() {
    if (runningTasks_++ > 0)
        return;
    hasOwner_ = parent() != nullptr;
    owner_ = parent();
    setParent(nullptr);
}

void ProgressHUD::returnToOwner() {
    if (!std::exchange(hasOwner_, false))
        return;
    setParent(owner_);
    if (owner_ == nullptr) {
        useAnimation_ = Animated::No;
        deleteLater();
    }
}

// A task does not hide what was shown anew after it had been hidden.
void ProgressHUD::cleanUp(int task, int showing) {
    if (--runningTasks_ == 0)
        returnToOwner();
    if (task == task_)
        setTaskInProgress(false);
    if (showing == showing_)
        hide(useAnimation_);
    else
        deleteIfDone();
}

// Properties and layout.

void ProgressHUD::propertyChanged(Effect effect) {
    if (effect == Effect::Nothing)
        return;
    if (isMainThread())
        apply(effect);
    else if (!handedOver_.at(static_cast<std::size_t>(effect)).exchange(true))
        performLaterOnMainThread(this, [this, effect] { apply(effect); });
}

void ProgressHUD::apply(Effect effect) {
    handedOver_.at(static_cast<std::size_t>(effect)) = false;
    if (effect == Effect::Indicator)
        rebuildIndicator();
    else if (effect == Effect::Progress)
        indicator_.setProgress(progress());
    else
        applyTexts();
    polish();
}

void ProgressHUD::rebuildIndicator() {
    indicator_.rebuild({.mode = mode(),
                        .customView = customView(),
                        .spinnerColor = activityIndicatorColor(),
                        .progress = progress()});
}

void ProgressHUD::applyTexts() {
    label_->setText(labelText());
    label_->setFont(labelFont());
    label_->setColor(labelColor());
    detailsLabel_->setText(detailsLabelText());
    detailsLabel_->setFont(detailsLabelFont());
    detailsLabel_->setColor(detailsLabelColor());
    const QString name = labelText().isEmpty() ? QStringLiteral("Busy") : labelText();
    describe(this, QAccessible::AlertMessage, name, detailsLabelText());
}

HUDContents ProgressHUD::contents() {
    constexpr double unlimited = std::numeric_limits<double>::infinity();
    return {
        .bounds = size(),
        .indicator = indicator_.size(),
        .label = label_->sizeWithin({unlimited, height()}),
        .details = [this](const QSizeF& limit) { return detailsLabel_->sizeWithin(limit); },
        .margin = margin(),
        .offset = {xOffset(), yOffset()},
        .square = square(),
        .minSize = minSize(),
    };
}

void ProgressHUD::updatePolish() {
    if (parentItem() != nullptr)
        place(this, boundsOf(parentItem()));
    const HUDLayout layout = layOut(contents());
    box_->setSize(size());
    box_->frame = layout.box;
    box_->color = color();
    box_->fillOpacity = opacity();
    box_->cornerRadius = cornerRadius();
    box_->dimBackground = dimBackground();
    box_->update();
    indicator_.place(layout.indicator);
    place(label_, layout.label);
    place(detailsLabel_, layout.details);
}

void ProgressHUD::followParent() {
    const bool covers = cover_ != nullptr;
    cover_.reset();
    parentFollower_.reset();
    if (parentItem() == nullptr)
        return;
    parentFollower_ = std::make_unique<QObject>();
    const auto layOutAgain = [this] { polish(); };
    connect(parentItem(), &QQuickItem::widthChanged, parentFollower_.get(), layOutAgain);
    connect(parentItem(), &QQuickItem::heightChanged, parentFollower_.get(), layOutAgain);
    connect(parentItem(), &QQuickItem::childrenChanged, parentFollower_.get(), [this] {
        if (cover_)
            coverSiblings();
    });
    if (covers)
        coverSiblings();
    polish();
}

void ProgressHUD::itemChange(ItemChange change, const ItemChangeData& data) {
    if (change == ItemParentHasChanged)
        followParent();
    QQuickItem::itemChange(change, data);
}

void ProgressHUD::geometryChange(const QRectF& newGeometry, const QRectF& oldGeometry) {
    QQuickItem::geometryChange(newGeometry, oldGeometry);
    polish();
}

}  // namespace tarnwick
