#include "ui/hud/ProgressHUDIndicator.h"

#include <utility>

#include "platform/views/ActivityIndicatorView.h"
#include "ui/hud/BarProgressView.h"
#include "ui/hud/RoundProgressView.h"

namespace tarnwick {

void ProgressHUDIndicator::rebuild(const Kind& kind) {
    switch (kind.mode) {
        case ModeIndeterminate:
            return showSpinner(kind.spinnerColor);
        case ModeBar:
            showOwn(std::make_unique<BarProgressView>());
            break;
        case ModePie:
        case ModeRing:
            showRound(kind.mode);
            break;
        case ModeCustomView:
            return showCustom(kind.customView);
        case ModeTextOnly:
            return remove();
    }
    setProgress(kind.progress);
}

void ProgressHUDIndicator::setProgress(double progress) {
    if (view_ && view_->metaObject()->indexOfProperty("progress") >= 0)
        view_->setProperty("progress", progress);
}

void ProgressHUDIndicator::showSpinner(const QColor& color) {
    if (qobject_cast<ActivityIndicatorView*>(own_.get()) == nullptr) {
        auto spinner = std::make_unique<ActivityIndicatorView>(nullptr);
        spinner->startAnimating();
        showOwn(std::move(spinner));
    }
    qobject_cast<ActivityIndicatorView*>(own_.get())->setColor(color);
}

void ProgressHUDIndicator::showRound(HUDMode mode) {
    if (qobject_cast<RoundProgressView*>(own_.get()) == nullptr)
        showOwn(std::make_unique<RoundProgressView>());
    // A pie that follows a ring stays a ring.
    if (mode == ModeRing)
        qobject_cast<RoundProgressView*>(own_.get())->setAnnular(true);
}

void ProgressHUDIndicator::showCustom(QQuickItem* view) {
    if (view_ == view)
        return;
    remove();
    if (view != nullptr)
        show(view);
}

void ProgressHUDIndicator::showOwn(std::unique_ptr<QQuickItem> view) {
    remove();
    own_ = std::move(view);
    show(own_.get());
}

void ProgressHUDIndicator::show(QQuickItem* view) {
    view_ = view;
    placedSize_ = {};
    view->setParentItem(hud_);
    const auto follow = [this] {
        if (view_->size() != placedSize_)
            hud_->polish();
    };
    for (const auto changed : {&QQuickItem::widthChanged, &QQuickItem::heightChanged})
        QObject::connect(view, changed, hud_, follow);
    QObject::connect(view, &QObject::destroyed, hud_, &QQuickItem::polish);
}

void ProgressHUDIndicator::remove() {
    if (view_) {
        view_->disconnect(hud_);
        view_->setParentItem(nullptr);
    }
    view_ = nullptr;
    own_.reset();
}

QSizeF ProgressHUDIndicator::size() {
    if (!view_)
        return {0, 0};
    if (view_->size() != placedSize_)
        size_ = view_->size();
    return size_;
}

void ProgressHUDIndicator::place(const QRectF& frame) {
    if (!view_)
        return;
    placedSize_ = frame.size();
    view_->setPosition(frame.topLeft());
    view_->setSize(frame.size());
}

}  // namespace tarnwick
