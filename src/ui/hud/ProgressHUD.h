#pragma once

#include <QColor>
#include <QFont>
#include <QQuickWindow>
#include <QThreadPool>
#include <functional>
#include <memory>
#include <vector>

#include "platform/motion/Animation.h"
#include "platform/motion/Pause.h"
#include "platform/threads/WeakDelegate.h"
#include "platform/views/InputBlocker.h"
#include "platform/views/LabelView.h"
#include "platform/views/Cover.h"
#include "ui/hud/ProgressHUDBox.h"
#include "ui/hud/ProgressHUDIndicator.h"
#include "ui/hud/ProgressHUDLayout.h"

namespace tarnwick {

class ProgressHUD;

// Notified when a HUD has been hidden. Held weakly: an implementation is a QObject too.
class ProgressHUDDelegate {
public:
    virtual ~ProgressHUDDelegate() = default;
    virtual void hudWasHidden(ProgressHUD* /*hud*/) {}
};

// The busy indicator: a translucent rounded box centred over a view, with an indicator and up to
// two texts. What else the view holds gets no touch and no key while it is shown. A property may be
// set on any thread: on another one than the main thread the change is handed over without waiting.
// Everything else is for the main thread. Lengths in points, times in seconds.
class ProgressHUD : public InputBlocker {
    Q_OBJECT

public:
    using Mode = HUDMode;
    using enum HUDMode;
    enum AnimationType { AnimationFade = 0, AnimationZoomDown = 1, AnimationZoomUp = 2 };
    using Block = std::function<void()>;

    // Makes a HUD of the size of the view, which must be there; it is added to nothing yet.
    explicit ProgressHUD(QQuickItem* view);
    explicit ProgressHUD(QQuickWindow* window);

    // Makes a HUD as the view's topmost child and shows it. It is removed and deleted once it is
    // hidden: hold it in a QPointer.
    static ProgressHUD* showHUDAddedTo(QQuickItem* view, Animated animated);
    // Hides the view's topmost HUD for good; false if it has none.
    static bool hideHUDForView(QQuickItem* view, Animated animated);
    // The same for every HUD of the view; tells how many there were.
    static int hideAllHUDsForView(QQuickItem* view, Animated animated);
    static ProgressHUD* HUDForView(QQuickItem* view);
    static std::vector<ProgressHUD*> allHUDsForView(QQuickItem* view);

    // With a grace time the HUD appears only after it, and only if a bound task is still running
    // then.
    void show(Animated animated);
    // With a minimum show time a shown HUD stays until it is over.
    void hide(Animated animated);
    void hideAfterDelay(Animated animated, double delay);

    // Shows the HUD, runs the method on a new thread, and hides the HUD when it returns.
    void showWhileExecuting(Block method, Animated animated);
    // The same on a queue, the default global one if none is given.
    void showAnimatedWhileExecutingBlock(Animated animated, Block block,
                                         QThreadPool* queue = nullptr, Block completion = {});

    void setMode(Mode mode);
    void setCustomView(QQuickItem* view);
    void setLabelText(const QString& text);
    void setLabelFont(const QFont& font);
    void setLabelColor(const QColor& color);
    void setDetailsLabelText(const QString& text);
    void setDetailsLabelFont(const QFont& font);
    void setDetailsLabelColor(const QColor& color);
    void setProgress(double progress);
    void setActivityIndicatorColor(const QColor& color);

    // These count from the next layout, drawing, show or hide. Main thread.
    void setOpacityOfBox(double opacity) { change(box_->fillOpacity, opacity); }
    void setColor(const QColor& color) { change(box_->color, color); }
    void setOffset(const QPointF& offset) { change(contents_.offset, offset); }
    void setMargin(double margin) { change(contents_.margin, margin); }
    void setCornerRadius(double radius) { change(box_->cornerRadius, radius); }
    void setMinSize(const QSizeF& size) { change(contents_.minSize, size); }
    void setSquare(bool square) { change(contents_.square, square); }
    void setDimBackground(bool dim) { change(box_->dimBackground, dim); }

    // Plain values that nothing has to follow at once. Main thread.
    AnimationType animationType = AnimationFade;
    double graceTime = 0.0;
    double minShowTime = 0.0;
    // A HUD that has a QObject parent, as showHUDAddedTo() makes it, is deleted then too.
    bool removeFromSuperViewOnHide = false;
    bool taskInProgress = false;  // a task bound to the HUD runs
    Block completionBlock;        // run once when the HUD has been hidden

    void setDelegate(ProgressHUDDelegate* delegate) { delegate_.set(delegate); }

    Mode mode() const { return indicator_.mode(); }
    QString labelText() const { return label_->text(); }
    QString detailsLabelText() const { return detailsLabel_->text(); }
    double progress() const { return indicator_.progress(); }
    // The current indicator; none in text-only mode.
    QQuickItem* indicator() const { return indicator_.view(); }
    bool isFinished() const { return finished_; }

protected:
    void updatePolish() override;
    void itemChange(ItemChange change, const ItemChangeData& data) override;
    void geometryChange(const QRectF& newGeometry, const QRectF& oldGeometry) override;

private:
    // Has the box laid out and drawn with the new value.
    template <class Value>
    void change(Value& stored, const Value& value) {
        stored = value;
        polish();
    }
    void changeOnMainThread(Block change);
    void followParent();
    void describeAll();
    void showNow();
    void coverSiblings();
    void hideNow();
    void finish();
    Block boundTask(Block block);
    void cleanUp();
    bool isShown() const { return sinceShown_->isRunning(); }

    ProgressHUDBox* box_;
    LabelView* label_;
    LabelView* detailsLabel_;
    ProgressHUDIndicator indicator_;

    HUDContents contents_;
    Animated useAnimation_ = Animated::No;
    bool finished_ = false;
    std::unique_ptr<Cover> cover_;
    Pause* graceTimer_;
    Pause* minShowTimer_;
    std::vector<std::unique_ptr<Pause>> delayedHides_;
    Stopwatch* sinceShown_;  // runs while the HUD is shown
    WeakDelegate<ProgressHUDDelegate> delegate_;
};

}  // namespace tarnwick
