#include "ui/hud/ProgressHUDIndicator.h"

#include "platform/views/ActivityIndicatorView.h"
#include "ui/hud/BarProgressView.h"
#include "ui/hud/RoundProgressView.h"

namespace tarnwick {

ProgressHUDIndicator::ProgressHUDIndicator(QQuickItem* hud) : hud_(hud) {
    rebuild();
}

void ProgressHUDIndicator::setMode(HUDMode mode) {
    mode_ = mode;
    rebuild();
}

void ProgressHUDIndicator::setCustomView(QQuickItem* view) {
    customView_ = view;
    rebuild();
}

void ProgressHUDIndicator::setSpinnerColor(const QColor& color) {
    spinnerColor_ = color;
    rebuild();
}

void ProgressHUDIndicator::setProgress(double progress) {
    progress_ = progress;
    passProgressOn();
}

void ProgressHUDIndicator::rebuild() {
    switch (mode_) {
        case ModeIndeterminate:
            return showSpinner();
        case ModeBar:
            return replaceBy(new BarProgressView(hud_));
        case ModePie:
        case ModeRing:
            return showRound();
        case ModeTextOnly:
            return replaceBy(nullptr);
        case ModeCustomView:
            if (customView_ != view_)
                replaceBy(customView_);
    }
}

void ProgressHUDIndicator::showSpinner() {
    if (qobject_cast<ActivityIndicatorView*>(view_) == nullptr) {
        auto* spinner = new ActivityIndicatorView(hud_);
        spinner->startAnimating();
        replaceBy(spinner);
    }
    qobject_cast<ActivityIndicatorView*>(view_)->setColor(spinnerColor_);
}

void ProgressHUDIndicator::showRound() {
    if (qobject_cast<RoundProgressView*>(view_) == nullptr)
        replaceBy(new RoundProgressView(hud_));
    // A pie that follows a ring stays a ring.
    if (mode_ == ModeRing)
        qobject_cast<RoundProgressView*>(view_)->setAnnular(true);
}

void ProgressHUDIndicator::replaceBy(QQuickItem* view) {
    if (view_)
        view_->setParentItem(nullptr);
    if (isOurs_)
        delete view_;
    view_ = view;
    isOurs_ = mode_ != ModeCustomView;
    if (view_ == nullptr)
        return;
    size_ = view_->size();
    view_->setParentItem(hud_);
    if (isOurs_)
        passProgressOn();
}

void ProgressHUDIndicator::passProgressOn() {
    if (view_ && view_->metaObject()->indexOfProperty("progress") >= 0)
        view_->setProperty("progress", progress_);
}

}  // namespace tarnwick
