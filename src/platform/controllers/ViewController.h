#pragma once

#include <QObject>
#include <QPointer>
#include <QQuickItem>
#include <QString>
#include <functional>
#include <map>
#include <memory>
#include <stdexcept>
#include <vector>

#include "platform/motion/Animation.h"

namespace tarnwick {

class OutletBase;
class StateCoder;
class Storyboard;

// A scene of the storyboard, or what a controller expects of it, is not as it should be; what()
// names the scene and the fault.
class StoryboardError : public std::runtime_error {
public:
    explicit StoryboardError(const QString& fault) : std::runtime_error(fault.toStdString()) {}
};

// The scene declares no such segue.
class MissingSegue : public StoryboardError {
public:
    using StoryboardError::StoryboardError;
};

// Rules one screen, or holds others. Its view is made when it is first asked for. Main thread; a
// reference may be dropped on any thread. Make it with makeViewController().
class ViewController : public QObject, public std::enable_shared_from_this<ViewController> {
    Q_OBJECT

public:
    ViewController();
    ~ViewController() override;

    // The view; made, with its outlets and actions, on the first call. Throws a StoryboardError if
    // its scene cannot be made, lacks an outlet or names an action that is not there; the
    // controller is then without a view. The view goes with the controller.
    QQuickItem* view();
    bool isViewLoaded() const { return !view_.isNull(); }

    const QString& title() const { return title_; }
    void setTitle(const QString& title);

    // Containment. The parent holds its children; a child tells nobody that it goes.
    ViewController* parentViewController() const { return parent_; }
    // The child leaves its former parent and hears that it will move to this one; whoever adds it
    // tells it when it did.
    void addChildViewController(const std::shared_ptr<ViewController>& child);
    // The controller hears that it moved to no parent.
    void removeFromParentViewController();
    virtual void willMoveToParentViewController(ViewController* /*parent*/) {}
    virtual void didMoveToParentViewController(ViewController* /*parent*/) {}

    // The storyboard that the controller came from, and its scene there; none if it was made by
    // hand.
    const std::shared_ptr<const Storyboard>& storyboard() const { return storyboard_; }
    const QString& scene() const { return scene_; }
    void cameFrom(std::shared_ptr<const Storyboard> storyboard, const QString& scene);
    // Makes the segue's destination and has the segue's class perform it. Throws MissingSegue.
    void performSegue(const QString& identifier);

    // The child that decides how the status bar looks, or whether it is there; none: this one
    // decides.
    virtual ViewController* childForStatusBarStyle() const { return nullptr; }
    virtual ViewController* childForStatusBarHidden() const { return nullptr; }

    // Slides the controller's view over the content of the window that this one's view is in, and
    // holds the controller until it is dismissed. Nothing happens without such a window, or while
    // something else is presented in it.
    void presentModalViewController(const std::shared_ptr<ViewController>& controller,
                                    Animated animated);
    // Slides what this one presented away; the completion is called when it has gone. Nothing
    // happens if there is nothing, or if it is going already.
    void dismissViewControllerAnimated(Animated animated, std::function<void()> completion = {});

    // Whether a container makes room for the status bar at the top of a flicking view.
    bool automaticallyAdjustsScrollViewInsets = true;

    // State restoration; a controller without an identifier is not restored.
    QString restorationIdentifier;
    const QMetaObject* restorationClass = nullptr;  // that makes it anew; none: its scene does
    virtual void encodeRestorableState(StateCoder&) const {}
    virtual void decodeRestorableState(const StateCoder&) {}

signals:
    void titleChanged();
    // What the status bar shows may have changed.
    void statusBarAppearanceUpdateNeeded();

protected:
    // Gives what the controller can do a name: a button of the scene with this `actionName` does
    // it. To be called before the view is loaded.
    void addAction(const QString& name, std::function<void(QQuickItem* sender)> action);

    // Makes the view: that of the scene, or a plain one.
    virtual void loadView();
    virtual void viewDidLoad() {}
    void setView(QQuickItem* view);

private:
    friend class OutletBase;

    void connectOutlets();
    void connectActions();

    QPointer<QQuickItem> view_;
    QString title_;
    ViewController* parent_ = nullptr;
    std::vector<std::shared_ptr<ViewController>> children_;
    std::shared_ptr<const Storyboard> storyboard_;
    QString scene_;
    std::vector<OutletBase*> outlets_;
    std::map<QString, std::function<void(QQuickItem*)>> actions_;
};

// Makes a controller that is deleted on the main thread, in a later turn of its loop: whoever
// drops the last reference may be the controller itself, or another thread.
template <class Controller, class... Arguments>
std::shared_ptr<Controller> makeViewController(Arguments&&... arguments) {
    return {new Controller(std::forward<Arguments>(arguments)...),
            [](QObject* controller) { controller->deleteLater(); }};
}

}  // namespace tarnwick
