#include "ui/hud/ProgressHUD.h"

#include <QCoreApplication>
#include <QGuiApplication>
#include <QPainter>
#include <QQuickPaintedItem>
#include <algorithm>
#include <thread>
#include <utility>

#include "platform/threads/MainThread.h"
#include "platform/views/Accessibility.h"
#include "ui/hud/BarProgressView.h"
#include "ui/hud/RoundProgressView.h"

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

// The rounded box, and the gradient that darkens the covered view. As large as the HUD.
class ProgressHUD::Box : public QQuickPaintedItem {
public:
    explicit Box(QQuickItem* parent) : QQuickPaintedItem(parent) {}

    void paint(QPainter* painter) override {
        painter->setRenderHint(QPainter::Antialiasing);
        if (dimBackground)
            painter->fillRect(boundingRect(), gradient());
        QColor fill = color;
        if (!fill.isValid())
            fill = QColor::fromRgbF(0, 0, 0, static_cast<float>(opacityOfFill));
        painter->setPen(Qt::NoPen);
        painter->setBrush(fill);
        painter->drawRoundedRect(frame, cornerRadius, cornerRadius);
    }

    QRectF frame;
    QColor color;
    double opacityOfFill = 0.8;
    double cornerRadius = 10.0;
    bool dimBackground = false;

private:
    QRadialGradient gradient() const {
        QRadialGradient darkening(boundingRect().center(), std::min(width(), height()));
        darkening.setColorAt(0, QColor::fromRgbF(0, 0, 0, 0));
        darkening.setColorAt(1, QColor::fromRgbF(0, 0, 0, 0.75F));
        return darkening;
    }
};

ProgressHUD::ProgressHUD(QQuickItem* view)
    : box_(new Box(this)),
      label_(new LabelView(this)),
      detailsLabel_(new LabelView(this)),
      graceTimer_(new Pause(this)),
      minShowTimer_(new Pause(this)),
      sinceShown_(new Stopwatch(this)) {
    Q_ASSERT_X(view != nullptr, "ProgressHUD", "View must not be nil.");
    setSize(view->size());
    setOpacity(0);
    setVisible(false);
    setAcceptedMouseButtons(Qt::AllButtons);
    setAcceptTouchEvents(true);
    label_->setLines(LabelView::Lines::One);
    label_->setFont(boldSystemFont(labelFontSize));
    label_->setColor(Qt::white);
    detailsLabel_->setFont(boldSystemFont(detailsFontSize));
    detailsLabel_->setColor(Qt::white);
    updateIndicators();
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
    redraw();
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
        redraw();
    });
}

void ProgressHUD::setMode(Mode mode) {
    changeOnMainThread([this, mode] {
        mode_ = mode;
        updateIndicators();
    });
}

void ProgressHUD::setCustomView(QQuickItem* view) {
    changeOnMainThread([this, view = QPointer(view)] {
        customView_ = view;
        updateIndicators();
    });
}

void ProgressHUD::setActivityIndicatorColor(const QColor& color) {
    changeOnMainThread([this, color] {
        activityIndicatorColor_ = color;
        updateIndicators();
    });
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

void ProgressHUD::setProgress(double progress) {
    changeOnMainThread([this, progress] {
        progress_ = progress;
        passProgressOn();
    });
}

void ProgressHUD::setOpacityOfBox(double opacity) {
    box_->opacityOfFill = opacity;
    redraw();
}

void ProgressHUD::setColor(const QColor& color) {
    box_->color = color;
    redraw();
}

void ProgressHUD::setOffset(const QPointF& offset) {
    offset_ = offset;
    redraw();
}

void ProgressHUD::setMargin(double margin) {
    margin_ = margin;
    redraw();
}

void ProgressHUD::setCornerRadius(double radius) {
    box_->cornerRadius = radius;
    redraw();
}

void ProgressHUD::setMinSize(const QSizeF& size) {
    minSize_ = size;
    redraw();
}

void ProgressHUD::setSquare(bool square) {
    square_ = square;
    redraw();
}

void ProgressHUD::setDimBackground(bool dim) {
    box_->dimBackground = dim;
    redraw();
}

void ProgressHUD::updateIndicators() {
    if (mode_ == ModeIndeterminate) {
        if (qobject_cast<ActivityIndicatorView*>(indicator_) == nullptr) {
            auto* spinner = new ActivityIndicatorView(this);
            spinner->startAnimating();
            replaceIndicator(spinner);
        }
        qobject_cast<ActivityIndicatorView*>(indicator_)->setColor(activityIndicatorColor_);
    } else if (mode_ == ModeBar) {
        replaceIndicator(new BarProgressView(this));
    } else if (mode_ == ModePie || mode_ == ModeRing) {
        if (qobject_cast<RoundProgressView*>(indicator_) == nullptr)
            replaceIndicator(new RoundProgressView(this));
        if (mode_ == ModeRing)
            qobject_cast<RoundProgressView*>(indicator_)->setAnnular(true);
    } else if (mode_ == ModeTextOnly) {
        replaceIndicator(nullptr);
    } else if (customView_ != indicator_) {
        replaceIndicator(customView_);
    }
}

void ProgressHUD::replaceIndicator(QQuickItem* indicator) {
    if (indicator_) {
        indicator_->setParentItem(nullptr);
        // A custom view belongs to who made it.
        if (indicator_ != customView_)
            delete indicator_;
    }
    indicator_ = indicator;
    if (indicator_ == nullptr)
        return;
    indicatorSize_ = indicator_->size();  // the layout may make it narrower for a while
    indicator_->setParentItem(this);
    if (mode_ != ModeCustomView)
        passProgressOn();
}

void ProgressHUD::passProgressOn() {
    if (indicator_ && indicator_->metaObject()->indexOfProperty("progress") >= 0)
        indicator_->setProperty("progress", progress_);
}

void ProgressHUD::describeAll() {
    const QString name = label_->text().isEmpty() ? QStringLiteral("Busy") : label_->text();
    describe(this, QAccessible::AlertMessage, name, detailsLabel_->text());
}

void ProgressHUD::redraw() {
    polish();  // the layout has the box drawn anew
}

void ProgressHUD::updatePolish() {
    if (parentItem() != nullptr)
        setSize(parentItem()->size());
    layout_ =
        layOut({.bounds = size(),
                .indicator = indicator_ ? indicatorSize_ : QSizeF(0, 0),
                .label = label_->sizeOnOneLine(),
                .details = [this](const QSizeF& limit) { return detailsLabel_->sizeWithin(limit); },
                .margin = margin_,
                .offset = offset_,
                .square = square_,
                .minSize = minSize_});
    box_->setSize(size());
    box_->frame = layout_.box;
    box_->update();
    place(indicator_, layout_.indicator);
    place(label_, layout_.label);
    place(detailsLabel_, layout_.details);
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

void ProgressHUD::mousePressEvent(QMouseEvent* event) {
    event->accept();
}

void ProgressHUD::touchEvent(QTouchEvent* event) {
    event->accept();
}

void ProgressHUD::wheelEvent(QWheelEvent* event) {
    event->accept();
}

}  // namespace tarnwick
