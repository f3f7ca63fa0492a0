#pragma once

#include <QColor>
#include <QSizeF>
#include <deque>
#include <functional>
#include <memory>

#include "platform/controllers/ViewController.h"
#include "platform/gestures/GestureRecognizer.h"
#include "platform/motion/Animation.h"
#include "platform/threads/WeakDelegate.h"
#include "platform/views/Cover.h"
#include "platform/views/ShadowView.h"
#include "ui/reveal/RevealProperties.h"
#include "ui/reveal/RevealTransition.h"
#include "ui/reveal/RevealViewControllerDelegate.h"

namespace tarnwick {

class RevealView;
class RevealViewControllerPanGestureRecognizer;
class TapGestureRecognizer;

// Holds up to three screens: the front one covers the two others and slides aside to reveal the
// rear one at the left or the right one at the right: by a toggle, by a horizontal drag, or by
// code. Moves and replacements run one after the other. Main thread.
class RevealViewController : public ViewController,
                             public RevealProperties,
                             public GestureRecognizerDelegate {
    Q_OBJECT

public:
    using Controller = std::shared_ptr<ViewController>;

    static constexpr const char* segueRearIdentifier = "sw_rear";
    static constexpr const char* segueFrontIdentifier = "sw_front";
    static constexpr const char* segueRightIdentifier = "sw_right";

    RevealViewController();
    RevealViewController(const Controller& rearViewController,
                         const Controller& frontViewController);
    ~RevealViewController() override;

    const Controller& rearViewController() const { return rearViewController_; }
    const Controller& frontViewController() const { return frontViewController_; }
    const Controller& rightViewController() const { return rightViewController_; }
    // At once while the view is not loaded; afterwards when what was asked for earlier is done.
    void setRearViewController(const Controller& controller, Animated animated = Animated::No);
    void setFrontViewController(const Controller& controller, Animated animated = Animated::No);
    void setRightViewController(const Controller& controller, Animated animated = Animated::No);
    void performTransitionOperation(ChildReplacement operation, const Controller& controller,
                                    Animated animated);
    // Slides an open front view out, replaces its content and closes it.
    void pushFrontViewController(const Controller& controller, Animated animated);

    RevealPosition frontViewPosition() const { return frontViewPosition_; }
    // Before the view is loaded the position is only remembered.
    void setFrontViewPosition(RevealPosition position, Animated animated = Animated::No);
    void revealToggleAnimated(Animated animated);
    void rightRevealToggleAnimated(Animated animated);

public slots:
    void revealToggle() { revealToggleAnimated(Animated::Yes); }
    void rightRevealToggle() { rightRevealToggleAnimated(Animated::Yes); }

public:
    // Made on the first call and added to the front view; other views may be given them as well.
    RevealViewControllerPanGestureRecognizer* panGestureRecognizer();
    TapGestureRecognizer* tapGestureRecognizer();

    const Shadow& frontViewShadow() const { return frontViewShadow_; }
    void setFrontViewShadowRadius(double radius);
    void setFrontViewShadowOffset(const QSizeF& offset);
    void setFrontViewShadowOpacity(double opacity);
    void setFrontViewShadowColor(const QColor& color);
    bool clipsViewsToBounds() const { return clipsViewsToBounds_; }
    void setClipsViewsToBounds(bool clips);

    // Null if none is set or it has been deleted.
    RevealViewControllerDelegate* delegate() const { return delegate_.get(); }
    void setDelegate(const WeakDelegate<RevealViewControllerDelegate>& delegate) {
        delegate_ = delegate;
    }

    ViewController* childForStatusBarStyle() const override;
    ViewController* childForStatusBarHidden() const override;

    void encodeRestorableState(StateCoder& coder) const override;
    // The children and the position are there again when this returns, or when the moves that are
    // under way are over. A child that was written without an identifier stays as it is.
    void decodeRestorableState(const StateCoder& coder) override;
    // A new container from the storyboard that the coder holds; none if it holds none.
    static Controller viewControllerWithRestorationIdentifierPath(const QStringList& path,
                                                                  const StateCoder& coder);

    bool gestureRecognizerShouldBegin(GestureRecognizer& recognizer) override;
    bool gestureRecognizerShouldRecognizeSimultaneouslyWith(GestureRecognizer& recognizer,
                                                            GestureRecognizer& other) override;

protected:
    void loadView() override;

private:
    // What is left to do when a move or a replacement is over.
    using Step = std::function<void()>;
    // Tells the delegate of a drag: location, progress, progress in the overdraw.
    using DragReport = void (RevealViewControllerDelegate::*)(RevealViewController&, double, double,
                                                              double);

    struct Restorable;  // the values that are restored, in their order

    void loadStoryboardControllers();
    void reloadShadow();

    void enqueue(Step block);
    void dequeue();
    // Nothing that waits runs until the queue is released by dequeue().
    void holdQueue();

    void setPosition(RevealPosition position, double duration);
    Step deployRear(RevealPosition position);
    RevealPosition rearPosition(RevealPosition position) const;
    Step deployRight(RevealPosition position);
    // The side leaves its current position for the other one.
    Step deploySide(ChildReplacement side, RevealPosition& current, RevealPosition position);
    Step deployFront(RevealPosition position);
    std::vector<Change> animationStep(double duration);
    Course course(double duration) const;

    void replace(ChildReplacement operation, const Controller& controller, Animated animated,
                 const Step& whenDone);
    Controller& childOf(ChildReplacement operation);
    // Makes the view of a side that is to be seen and has had no child until now.
    void prepareLateSide(ChildReplacement side);
    Step changeOver(const Controller& from, const Controller& to, QQuickItem* slot);
    void animateReplacement(ChildReplacement operation, const Controller& from,
                            const Controller& to, const Step& completion);
    void deploy(const Controller& controller, QQuickItem* slot) const;
    static void undeploy(const Controller& controller);

    void handleRevealGesture();
    void handleTapGesture();
    void beginDrag();
    void catchMovingFront();
    void drag();
    void endDrag();
    void cancelDrag();
    void prepareSidesFor(RevealPosition position);
    void restoreUserInteraction();
    void notifyDragEnded();
    void reportDrag(DragReport report);
    bool panShouldBegin();
    bool tapShouldBegin();
    RevealGeometry geometry() const;
    double frontX() const;

    QPointer<RevealView> revealView_;  // the view, once it is loaded
    Controller rearViewController_;
    Controller frontViewController_;
    Controller rightViewController_;
    RevealPosition frontViewPosition_ = FrontPositionClosed;
    RevealPosition rearViewPosition_ = FrontPositionClosed;
    RevealPosition rightViewPosition_ = FrontPositionClosed;
    RevealPosition panInitialFrontPosition_ = FrontPositionClosed;
    double dragOffset_ =
        0.0;  // of the place where a moving front was caught from where it was going

    Shadow frontViewShadow_ = {
        .color = Qt::black, .opacity = 1.0, .offset = {0, 2.5}, .radius = 2.5};
    bool clipsViewsToBounds_ = false;
    bool userInteractionStore_ = true;
    std::unique_ptr<Cover> userInteractionOff_;  // during a drag
    std::deque<Step> animationQueue_;  // the newest at the front, the running one at the back
    std::unique_ptr<RevealViewControllerPanGestureRecognizer> panGestureRecognizer_;
    std::unique_ptr<TapGestureRecognizer> tapGestureRecognizer_;
    WeakDelegate<RevealViewControllerDelegate> delegate_;
};

}  // namespace tarnwick
