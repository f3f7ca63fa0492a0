#include "ui/hud/ProgressHUD.h"

#include <QCoreApplication>
#include <QGuiApplication>
#include <thread>
#include <utility>

#include "platform/threads/MainThread.h"
#include "platform/views/Accessibility.h"

namespace tarnwick {

namespace {

constexpr double animationDuration = 0.3;
constexpr double hiddenOpacity = 0.01;  // at the end of an animated hide
constexpr double smallScale = 0.5;
constexpr double largeScale = 1.5;
constexpr int labelFontSize = 16;
constexpr int detailsFontSize = 12;

QFont boldSystemFont(int size) {
    QFont font = QGuiApplication::font();
    font.setBold(true);
    font.setPixelSize(size);
    return font;
}

void place(QQuickItem* item, const QRectF& frame) {
    if (item == nullptr)
        return;
    item->setPosition(frame.topLeft());
    item->setSize(frame.size());
}

}  // namespace

ProgressHUD::ProgressHUD(QQuickItem* view)
    : InputBlocker(nullptr),
      box_(new ProgressHUDBox(this)),
      label_(new LabelView(this)),
      detailsLabel_(new LabelView(this)),
      indicator_(this),
      graceTimer_(new Pause(this)),
      minShowTimer_(new Pause(this)),
      sinceShown_(new Stopwatch(this)) {
    Q_ASSERT_X(view != nullptr, "ProgressHUD", "View must not be nil.");
    setSize(view->size());
    setOpacity(0);
    setVisible(false);
    contents_.details = [this](const QSizeF& limit) { return detailsLabel_->sizeWithin(limit); };
    label_->setLines(LabelView::Lines::One);
    label_->setFont(boldSystemFont(labelFontSize));
    label_->setColor(Qt::white);
    detailsLabel_->setFont(boldSystemFont(detailsFontSize));
    detailsLabel_->setColor(Qt::white);
    describeAll();
}

ProgressHUD::ProgressHUD(QQuickWindow* window) : ProgressHUD(window->contentItem()) {}

ProgressHUD* ProgressHUD::showHUDAddedTo(QQuickItem* view, Animated animated) {
    auto* hud = new ProgressHUD(view);
    hud->removeFromSuperViewOnHide = true;
    hud->setParent(view);
    hud->setParentItem(view);
    hud->show(animated);
    return hud;
}

bool ProgressHUD::hideHUDForView(QQuickItem* view, Animated animated) {
    ProgressHUD* hud = HUDForView(view);
    if (hud == nullptr)
        return false;
    hud->removeFromSuperViewOnHide = true;
    hud->hide(animated);
    return true;
}

int ProgressHUD::hideAllHUDsForView(QQuickItem* view, Animated animated) {
    const auto huds = allHUDsForView(view);
    for (ProgressHUD* hud : huds) {
        hud->removeFromSuperViewOnHide = true;
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

void ProgressHUD::show(Animated animated) {
    useAnimation_ = animated;
    finished_ = false;
    if (graceTime <= 0) {
        showNow();
        return;
    }
    graceTimer_->start(graceTime, [this] {
        if (taskInProgress)
            showNow();
    });
}

void ProgressHUD::showNow() {
    const bool animated = useAnimation_ == Animated::Yes;
    setVisible(true);
    coverSiblings();
    polish();
    sinceShown_->start();
    if (!animated) {
        applyAtOnce({{this, Change::Property::Opacity, 1.0}});
        return;
    }
    std::vector<Change> changes = {{this, Change::Property::Opacity, 1.0}};
    if (animationType != AnimationFade) {
        const double from = animationType == AnimationZoomUp ? smallScale : largeScale;
        applyAtOnce({{this, Change::Property::Scale, from}});
        changes.push_back({this, Change::Property::Scale, 1.0});
    }
    animate(animationDuration, Easing::InOut, changes);
}

// What lies under the HUD cannot be pressed by keys either.
void ProgressHUD::coverSiblings() {
    if (parentItem() == nullptr)
        return;
    QList<QQuickItem*> siblings = parentItem()->childItems();
    siblings.removeIf([](QQuickItem* item) { return qobject_cast<ProgressHUD*>(item) != nullptr; });
    cover_ = std::make_unique<Cover>(siblings);
}

void ProgressHUD::hide(Animated animated) {
    useAnimation_ = animated;
    const double missing = minShowTime - sinceShown_->seconds();
    if (minShowTime > 0 && isShown() && missing > 0)
        minShowTimer_->start(missing, [this] { hideNow(); });
    else
        hideNow();
}

void ProgressHUD::hideAfterDelay(Animated animated, double delay) {
    delayedHides_.push_back(std::make_unique<Pause>(nullptr));
    delayedHides_.back()->start(delay, [this, animated] { hide(animated); });
}

void ProgressHUD::hideNow() {
    const bool fades = useAnimation_ == Animated::Yes && isShown();
    sinceShown_->stop();
    if (!fades) {
        finish();
        return;
    }
    std::vector<Change> changes = {{this, Change::Property::Opacity, hiddenOpacity}};
    if (animationType != AnimationFade)
        changes.push_back({this, Change::Property::Scale,
                           animationType == AnimationZoomUp ? largeScale : smallScale});
    animate(animationDuration, Easing::InOut, changes, [this, hud = QPointer(this)](bool finished) {
        // Shown again meanwhile, or gone with its view: then there is nothing to finish.
        if (finished && hud)
            finish();
    });
}

void ProgressHUD::finish() {
    for (const auto& delayed : delayedHides_)
        delayed->cancel();
    finished_ = true;
    applyAtOnce({{this, Change::Property::Opacity, 0.0}, {this, Change::Property::Scale, 1.0}});
    setVisible(false);
    cover_.reset();
    const Block completion = std::exchange(completionBlock, nullptr);
    const QPointer<ProgressHUD> hud = this;
    if (removeFromSuperViewOnHide) {
        setParentItem(nullptr);
        if (parent() != nullptr)
            deleteLater();  // nobody else will
    }
    if (completion)
        completion();
    if (hud && delegate_.get() != nullptr)
        delegate_.get()->hudWasHidden(this);
}

void ProgressHUD::showWhileExecuting(Block method, Animated animated) {
    taskInProgress = true;
    std::thread(boundTask(std::move(method))).detach();
    show(animated);
}

void ProgressHUD::showAnimatedWhileExecutingBlock(Animated animated, Block block,
                                                  QThreadPool* queue, Block completion) {
    taskInProgress = true;
    completionBlock = std::move(completion);
    QThreadPool* pool = queue != nullptr ? queue : QThreadPool::globalInstance();
    pool->start(boundTask(std::move(block)));
    show(animated);
}

ProgressHUD::Block ProgressHUD::boundTask(Block block) {
    return [hud = QPointer(this), block = std::move(block)] {
        block();
        performLaterOnMainThread(QCoreApplication::instance(), [hud] {
            if (hud)
                hud->cleanUp();
        });
    };
}

void ProgressHUD::cleanUp() {
    taskInProgress = false;
    hide(useAnimation_);
}

void ProgressHUD::changeOnMainThread(Block change) {
    performOnMainThread(this, [this, change = std::move(change)] {
        change();
        describeAll();
        polish();
    });
}

void ProgressHUD::setMode(Mode mode) {
    changeOnMainThread([this, mode] { indicator_.setMode(mode); });
}

void ProgressHUD::setCustomView(QQuickItem* view) {
    changeOnMainThread([this, view = QPointer(view)] { indicator_.setCustomView(view); });
}

void ProgressHUD::setActivityIndicatorColor(const QColor& color) {
    changeOnMainThread([this, color] { indicator_.setSpinnerColor(color); });
}

void ProgressHUD::setProgress(double progress) {
    changeOnMainThread([this, progress] { indicator_.setProgress(progress); });
}

void ProgressHUD::setLabelText(const QString& text) {
    changeOnMainThread([this, text] { label_->setText(text); });
}

void ProgressHUD::setLabelFont(const QFont& font) {
    changeOnMainThread([this, font] { label_->setFont(font); });
}

void ProgressHUD::setLabelColor(const QColor& color) {
    changeOnMainThread([this, color] { label_->setColor(color); });
}

void ProgressHUD::setDetailsLabelText(const QString& text) {
    changeOnMainThread([this, text] { detailsLabel_->setText(text); });
}

void ProgressHUD::setDetailsLabelFont(const QFont& font) {
    changeOnMainThread([this, font] { detailsLabel_->setFont(font); });
}

void ProgressHUD::setDetailsLabelColor(const QColor& color) {
    changeOnMainThread([this, color] { detailsLabel_->setColor(color); });
}

void ProgressHUD::describeAll() {
    const QString name = label_->text().isEmpty() ? QStringLiteral("Busy") : label_->text();
    describe(this, QAccessible::AlertMessage, name, detailsLabel_->text());
}

void ProgressHUD::updatePolish() {
    if (parentItem() != nullptr)
        setSize(parentItem()->size());
    contents_.bounds = size();
    contents_.indicator = indicator_.size();
    contents_.label = label_->sizeOnOneLine();
    const HUDLayout layout = layOut(contents_);
    box_->setSize(size());
    box_->frame = layout.box;
    box_->update();
    place(indicator_.view(), layout.indicator);
    place(label_, layout.label);
    place(detailsLabel_, layout.details);
}

void ProgressHUD::followParent() {
    connect(parentItem(), &QQuickItem::widthChanged, this, &QQuickItem::polish);
    connect(parentItem(), &QQuickItem::heightChanged, this, &QQuickItem::polish);
    polish();
}

void ProgressHUD::itemChange(ItemChange change, const ItemChangeData& data) {
    if (change == ItemParentHasChanged && data.item != nullptr)
        followParent();
    QQuickItem::itemChange(change, data);
}

void ProgressHUD::geometryChange(const QRectF& newGeometry, const QRectF& oldGeometry) {
    QQuickItem::geometryChange(newGeometry, oldGeometry);
    polish();
}

}  // namespace tarnwick
