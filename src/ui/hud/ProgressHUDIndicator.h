#pragma once

#include <QColor>
#include <QPointer>
#include <QQuickItem>

namespace tarnwick {

// Which indicator a HUD shows.
enum HUDMode {
    ModeIndeterminate = 0,
    ModePie = 1,
    ModeBar = 2,
    ModeRing = 3,
    ModeCustomView = 4,
    ModeTextOnly = 5
};

// Keeps the indicator of a HUD as its mode wants it: a child of the HUD, or none. Main thread.
class ProgressHUDIndicator {
public:
    // The HUD outlives this.
    explicit ProgressHUDIndicator(QQuickItem* hud);

    HUDMode mode() const { return mode_; }
    void setMode(HUDMode mode);
    // The view stays with its owner, and may vanish.
    void setCustomView(QQuickItem* view);
    void setSpinnerColor(const QColor& color);
    double progress() const { return progress_; }
    void setProgress(double progress);

    // Null if there is none.
    QQuickItem* view() const { return view_; }
    // The size that the view had when it became the indicator, as the layout may narrow it; zero
    // if there is none.
    QSizeF size() const { return view_ ? size_ : QSizeF(0, 0); }

private:
    void rebuild();
    void showSpinner();
    void showRound();
    void replaceBy(QQuickItem* view);
    void passProgressOn();

    QQuickItem* const hud_;
    HUDMode mode_ = ModeIndeterminate;
    QPointer<QQuickItem> customView_;
    QColor spinnerColor_ = Qt::white;
    double progress_ = 0.0;
    QPointer<QQuickItem> view_;
    bool isOurs_ = false;  // and not the custom view
    QSizeF size_;
};

}  // namespace tarnwick
