#pragma once

#include <QColor>
#include <QPointer>
#include <QQuickItem>
#include <memory>

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

// The indicator of a HUD: a child of the HUD, or none. Main thread.
class ProgressHUDIndicator {
public:
    struct Kind {
        HUDMode mode = ModeIndeterminate;
        QQuickItem* customView = nullptr;  // is only put in and taken out, and may vanish
        QColor spinnerColor = Qt::white;
        double progress = 0.0;
    };

    // The HUD outlives this.
    explicit ProgressHUDIndicator(QQuickItem* hud) : hud_(hud) {}
    ~ProgressHUDIndicator() { remove(); }
    ProgressHUDIndicator(const ProgressHUDIndicator&) = delete;
    ProgressHUDIndicator& operator=(const ProgressHUDIndicator&) = delete;

    void rebuild(const Kind& kind);
    // For an indicator that takes a progress.
    void setProgress(double progress);

    // Null if there is none.
    QQuickItem* view() const { return view_; }
    // The size that the view has without the layout, which may narrow it; zero if there is none.
    QSizeF size();
    void place(const QRectF& frame);

private:
    void showSpinner(const QColor& color);
    void showRound(HUDMode mode);
    void showCustom(QQuickItem* view);
    void showOwn(std::unique_ptr<QQuickItem> view);
    void show(QQuickItem* view);
    void remove();

    QQuickItem* const hud_;
    QPointer<QQuickItem> view_;
    std::unique_ptr<QQuickItem> own_;  // null if the view is a custom one
    QSizeF size_;
    QSizeF placedSize_;
};

}  // namespace tarnwick
