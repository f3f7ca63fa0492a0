#pragma once

#include <QColor>
#include <QFont>
#include <QPointer>
#include <QQuickItem>
#include <QSizeF>
#include <QString>
#include <functional>
#include <mutex>
#include <type_traits>
#include <utility>

#include "platform/threads/WeakDelegate.h"
#include "ui/hud/ProgressHUDIndicator.h"

namespace tarnwick {

class ProgressHUD;

// Notified when a HUD has been hidden. Held weakly: an implementation is a QObject too.
class ProgressHUDDelegate {
public:
    virtual ~ProgressHUDDelegate() = default;
    virtual void hudWasHidden(ProgressHUD* /*hud*/) {}
};

// The properties of a HUD. Any thread may read and set them while the HUD lives. The views follow
// on the main thread: at once if the change was made there, otherwise later, without waiting. A
// thread that may outlive the HUD hands its changes over with performLaterOnMainThread() and a
// QPointer. Lengths in points, times in seconds; a value out of its range is drawn as the nearest
// in it.
class ProgressHUDProperties {
public:
    using Mode = HUDMode;
    using enum HUDMode;
    enum AnimationType { AnimationFade = 0, AnimationZoomDown = 1, AnimationZoomUp = 2 };
    using Block = std::function<void()>;

    Mode mode() const { return get(&Values::mode); }
    void setMode(Mode mode) { set(&Values::mode, mode, Effect::Indicator); }
    // The indicator in custom-view mode. It stays with its owner, and may vanish.
    QQuickItem* customView() const { return get(&Values::customView); }
    void setCustomView(QQuickItem* view) { set(&Values::customView, view, Effect::Indicator); }
    double progress() const { return get(&Values::progress); }  // 0.0 to 1.0
    void setProgress(double progress) { set(&Values::progress, progress, Effect::Progress); }
    QColor activityIndicatorColor() const { return get(&Values::activityIndicatorColor); }
    void setActivityIndicatorColor(const QColor& color) {
        set(&Values::activityIndicatorColor, color, Effect::Indicator);
    }

    QString labelText() const { return get(&Values::labelText); }
    void setLabelText(const QString& text) { set(&Values::labelText, text, Effect::Looks); }
    QFont labelFont() const { return get(&Values::labelFont); }
    void setLabelFont(const QFont& font) { set(&Values::labelFont, font, Effect::Looks); }
    QColor labelColor() const { return get(&Values::labelColor); }
    void setLabelColor(const QColor& color) { set(&Values::labelColor, color, Effect::Looks); }
    QString detailsLabelText() const { return get(&Values::detailsLabelText); }
    void setDetailsLabelText(const QString& text) {
        set(&Values::detailsLabelText, text, Effect::Looks);
    }
    QFont detailsLabelFont() const { return get(&Values::detailsLabelFont); }
    void setDetailsLabelFont(const QFont& font) {
        set(&Values::detailsLabelFont, font, Effect::Looks);
    }
    QColor detailsLabelColor() const { return get(&Values::detailsLabelColor); }
    void setDetailsLabelColor(const QColor& color) {
        set(&Values::detailsLabelColor, color, Effect::Looks);
    }

    // Of the black box; without effect if a colour is set.
    double opacity() const { return get(&Values::opacity); }
    void setOpacity(double opacity) { set(&Values::opacity, opacity, Effect::Looks); }
    QColor color() const { return get(&Values::color); }  // invalid: black
    void setColor(const QColor& color) { set(&Values::color, color, Effect::Looks); }
    // From the centre.
    double xOffset() const { return get(&Values::xOffset); }
    void setXOffset(double offset) { set(&Values::xOffset, offset, Effect::Looks); }
    double yOffset() const { return get(&Values::yOffset); }
    void setYOffset(double offset) { set(&Values::yOffset, offset, Effect::Looks); }
    double margin() const { return get(&Values::margin); }
    void setMargin(double margin) { set(&Values::margin, margin, Effect::Looks); }
    double cornerRadius() const { return get(&Values::cornerRadius); }
    void setCornerRadius(double radius) { set(&Values::cornerRadius, radius, Effect::Looks); }
    QSizeF minSize() const { return get(&Values::minSize); }
    void setMinSize(const QSizeF& size) { set(&Values::minSize, size, Effect::Looks); }
    bool square() const { return get(&Values::square); }
    void setSquare(bool square) { set(&Values::square, square, Effect::Looks); }
    bool dimBackground() const { return get(&Values::dimBackground); }
    void setDimBackground(bool dim) { set(&Values::dimBackground, dim, Effect::Looks); }

    AnimationType animationType() const { return get(&Values::animationType); }
    void setAnimationType(AnimationType type) { set(&Values::animationType, type); }
    double graceTime() const { return get(&Values::graceTime); }
    void setGraceTime(double seconds) { set(&Values::graceTime, seconds); }
    double minShowTime() const { return get(&Values::minShowTime); }
    void setMinShowTime(double seconds) { set(&Values::minShowTime, seconds); }
    // A HUD that has a QObject parent, as showHUDAddedTo() makes it, is deleted then too.
    bool removeFromSuperViewOnHide() const { return get(&Values::removeFromSuperViewOnHide); }
    void setRemoveFromSuperViewOnHide(bool remove) {
        set(&Values::removeFromSuperViewOnHide, remove);
    }
    // A task bound to the HUD runs.
    bool taskInProgress() const { return get(&Values::taskInProgress); }
    void setTaskInProgress(bool inProgress) { set(&Values::taskInProgress, inProgress); }
    // Run once, on the main thread, when the HUD has been hidden.
    Block completionBlock() const { return get(&Values::completionBlock); }
    void setCompletionBlock(Block block) { set(&Values::completionBlock, std::move(block)); }
    // Null if none is set or it has been deleted.
    ProgressHUDDelegate* delegate() const { return get(&Values::delegate).get(); }
    void setDelegate(const WeakDelegate<ProgressHUDDelegate>& delegate) {
        set(&Values::delegate, delegate);
    }

protected:
    // What follows a change.
    enum class Effect { Nothing, Indicator, Progress, Looks };
    static constexpr std::size_t effectCount = 4;

    ProgressHUDProperties();
    virtual ~ProgressHUDProperties() = default;

    // On the thread of the change.
    virtual void propertyChanged(Effect effect) = 0;
    // None from then on.
    Block takeCompletionBlock();

private:
    struct Values {
        Mode mode = ModeIndeterminate;
        QPointer<QQuickItem> customView;
        double progress = 0.0;
        QColor activityIndicatorColor = Qt::white;
        QString labelText;
        QFont labelFont;
        QColor labelColor = Qt::white;
        QString detailsLabelText;
        QFont detailsLabelFont;
        QColor detailsLabelColor = Qt::white;
        double opacity = 0.8;
        QColor color;
        double xOffset = 0.0;
        double yOffset = 0.0;
        double margin = 20.0;
        double cornerRadius = 10.0;
        QSizeF minSize = {0, 0};
        bool square = false;
        bool dimBackground = false;
        AnimationType animationType = AnimationFade;
        double graceTime = 0.0;
        double minShowTime = 0.0;
        bool removeFromSuperViewOnHide = false;
        bool taskInProgress = false;
        Block completionBlock;
        WeakDelegate<ProgressHUDDelegate> delegate;
    };

    template <class Value>
    Value get(Value Values::*property) const {
        const std::lock_guard lock(guard_);
        return values_.*property;
    }
    // The former value is destroyed outside the lock: what it holds may use the properties.
    template <class Value>
    void set(Value Values::*property, std::type_identity_t<Value> value,
             Effect effect = Effect::Nothing) {
        {
            const std::lock_guard lock(guard_);
            std::swap(values_.*property, value);
        }
        propertyChanged(effect);
    }

    mutable std::mutex guard_;
    Values values_;
};

}  // namespace tarnwick
