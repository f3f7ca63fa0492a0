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

// A scene, or what a controller expects of it, is invalid; what() names the scene and the fault.
class StoryboardError : public std::runtime_error {
public:
    explicit StoryboardError(const QString& fault) : std::runtime_error(fault.toStdString()) {}
};

// The scene has no such segue.
class MissingSegue : public StoryboardError {
public:
    using StoryboardError::StoryboardError;
};

// Controls a screen, or holds other controllers. Its view is created on first use. Main thread, but
// a reference may be dropped on any thread. Create it with makeViewController().
class ViewController : public QObject, public std::enable_shared_from_this<ViewController> {
    Q_OBJECT

public:
    ViewController();
    ~ViewController() override;

    // The view; created, with its outlets and actions, on the first call, and deleted with the
    // controller. Throws a StoryboardError if the scene cannot be created, lacks an outlet or names
    // an unknown action; the controller then has no view.
    QQuickItem* view();
    bool isViewLoaded() const { return !view_.isNull(); }

    const QString& title() const { return title_; }
    void setTitle(const QString& title);

    // Containment. The parent owns its children.
    ViewController* parentViewController() const { return parent_; }
    // The child leaves its former parent and is notified that it will move to this one; the
    // caller notifies it afterwards that it did.
    void addChildViewController(const std::shared_ptr<ViewController>& child);
    // The controller is notified that it moved to no parent.
    void removeFromParentViewController();
    virtual void willMoveToParentViewController(ViewController* /*parent*/) {}
    virtual void didMoveToParentViewController(ViewController* /*parent*/) {}

    // The storyboard and the scene that the controller was created from; null and empty if from
    // none.
    const std::shared_ptr<const Storyboard>& storyboard() const { return storyboard_; }
    const QString& scene() const { return scene_; }
    void cameFrom(std::shared_ptr<const Storyboard> storyboard, const QString& scene);
    // Creates the segue's destination and performs the segue. Throws MissingSegue.
    void performSegue(const QString& identifier);

    // The child that decides on the style or the visibility of the status bar; null if this
    // controller does.
    virtual ViewController* childForStatusBarStyle() const { return nullptr; }
    virtual ViewController* childForStatusBarHidden() const { return nullptr; }

    // Slides the controller's view over the content of this view's window, and holds the controller
    // until it is dismissed. Does nothing without a Window, or while something else is presented in
    // it.
    void presentModalViewController(const std::shared_ptr<ViewController>& controller,
                                    Animated animated);
    // Slides away what this controller presented; the completion is called afterwards. Does nothing
    // if there is nothing, or if it is already leaving.
    void dismissViewControllerAnimated(Animated animated, std::function<void()> completion = {});

    // What presented the controller goes without dismissing it, and so does its sheet. The program
    // may end once the task is called: a controller with something to keep calls it afterwards.
    virtual void presentationWillBeCutShort(const std::function<void()>& whenKept) { whenKept(); }

    // Whether a container leaves space for the status bar at the top of a Flickable.
    bool automaticallyAdjustsScrollViewInsets = true;

    // State restoration. A controller without an identifier is not restored.
    QString restorationIdentifier;
    const QMetaObject* restorationClass = nullptr;  // that creates it anew; null: its scene does
    virtual void encodeRestorableState(StateCoder&) const {}
    virtual void decodeRestorableState(const StateCoder&) {}

signals:
    void titleChanged();
    // The status bar's style or visibility may have changed.
    void statusBarAppearanceUpdateNeeded();

protected:
    // Names an action: a button of the scene with this `actionName` performs it. To be called
    // before the view is loaded.
    void addAction(const QString& name, std::function<void(QQuickItem* sender)> action);

    // Creates the view: the scene's, or a plain item.
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

// Creates a controller that is deleted on the main thread in a later turn of its loop, as the last
// reference may be dropped by the controller itself or on another thread.
template <class Controller, class... Arguments>
std::shared_ptr<Controller> makeViewController(Arguments&&... arguments) {
    return {new Controller(std::forward<Arguments>(arguments)...),
            [](QObject* controller) { controller->deleteLater(); }};
}

}  // namespace tarnwick
