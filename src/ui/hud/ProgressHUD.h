#pragma once

#include <QQuickWindow>
#include <array>
#include <atomic>
#include <memory>
#include <vector>

#include "core/TaskQueues.h"
#include "platform/motion/Animation.h"
#include "platform/motion/Pause.h"
#include "platform/views/Cover.h"
#include "platform/views/InputBlocker.h"
#include "platform/views/LabelView.h"
#include "ui/hud/ProgressHUDBox.h"
#include "ui/hud/ProgressHUDIndicator.h"
#include "ui/hud/ProgressHUDLayout.h"
#include "ui/hud/ProgressHUDProperties.h"

namespace tarnwick {

// The busy indicator: a translucent rounded box centred over a view, with an indicator and up to
// two texts. What else the view holds gets no touch and no key while it is shown. Except for the
// properties it is for the main thread. Lengths in points, times in seconds.
class ProgressHUD : public InputBlocker, public ProgressHUDProperties {
    Q_OBJECT

public:
    // Makes a HUD of the size of the view, which must be there; it is added to nothing yet.
    explicit ProgressHUD(QQuickItem* view);
    explicit ProgressHUD(QQuickWindow* window);
    explicit ProgressHUD(const QRectF& frame);
    ~ProgressHUD() override;

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
    // Not once the HUD has been hidden otherwise.
    void hideAfterDelay(Animated animated, double delay);

    // Shows the HUD, runs the method on a new thread of the program's queues, and hides the HUD
    // when it returns. The method may use the HUD: if the HUD is hidden or its view deleted
    // meanwhile, it is deleted only when the method has returned.
    void showWhileExecuting(Block method, Animated animated);
    // The same on the global queue of the given queues, by default the program's.
    void showAnimatedWhileExecutingBlock(Animated animated, Block block,
                                         TaskQueues* queues = nullptr, Block completion = {});

    // The property, which is the box's opacity. That of the whole HUD is its alpha: 0 while hidden.
    using ProgressHUDProperties::opacity;
    using ProgressHUDProperties::setOpacity;
    double alpha() const { return QQuickItem::opacity(); }

    // The current indicator; none in text-only mode.
    QQuickItem* indicator() const { return indicator_.view(); }
    bool isFinished() const { return finished_; }

protected:
    void propertyChanged(Effect effect) override;
    void updatePolish() override;
    void itemChange(ItemChange change, const ItemChangeData& data) override;
    void geometryChange(const QRectF& newGeometry, const QRectF& oldGeometry) override;

private:
    void apply(Effect effect);
    void rebuildIndicator();
    void applyTexts();
    HUDContents contents();
    void followParent();

    void showNow();
    void coverSiblings();
    void hideNow();
    void finish();
    void endTimers();

    void run(Block block, void (TaskQueues::*start)(Block), TaskQueues& queues);
    void keepWhileTasksRun();
    void returnToOwner();
    void cleanUp(int task, int showing);
    void deleteIfDone();
    bool isShown() const { return sinceShown_->isRunning(); }

    ProgressHUDBox* box_;
    LabelView* label_;
    LabelView* detailsLabel_;
    ProgressHUDIndicator indicator_;
    // Which effects are on their way to the main thread, and need not be sent again.
    std::array<std::atomic<bool>, effectCount> handedOver_ = {};

    Animated useAnimation_ = Animated::No;
    bool finished_ = false;
    int showing_ = 0;  // incremented each time the HUD is hidden
    std::unique_ptr<Cover> cover_;
    std::unique_ptr<QObject> parentFollower_;  // has the connections to the parent item
    Pause* graceTimer_;
    Pause* minShowTimer_;
    std::vector<Pause*> delayedHides_;
    Stopwatch* sinceShown_;  // runs while the HUD is shown

    int task_ = 0;  // the latest one that was bound to it
    int runningTasks_ = 0;
    // The QObject parent, while tasks run and it may not delete the HUD.
    bool hasOwner_ = false;
    QPointer<QObject> owner_;
};

}  // namespace tarnwick
