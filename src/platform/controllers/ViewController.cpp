#include "platform/controllers/ViewController.h"

#include <algorithm>
#include <utility>

#include "platform/controllers/Action.h"
#include "platform/controllers/Outlet.h"
#include "platform/controllers/Storyboard.h"

namespace tarnwick {

ViewController::ViewController() = default;

ViewController::~ViewController() {
    for (const auto& child : children_)
        child->parent_ = nullptr;
    delete view_;
}

QQuickItem* ViewController::view() {
    if (isViewLoaded())
        return view_;
    try {
        loadView();
        connectOutlets();
        connectActions();
    } catch (const StoryboardError&) {
        delete view_;
        throw;
    }
    viewDidLoad();
    return view_;
}

void ViewController::loadView() {
    setView(storyboard_ ? storyboard_->makeView(scene_) : new QQuickItem);
}

void ViewController::setView(QQuickItem* view) {
    view_ = view;
}

void ViewController::connectOutlets() {
    for (OutletBase* outlet : outlets_)
        if (!outlet->connectIn(*view_))
            throw StoryboardError(
                QStringLiteral("scene \"%1\" has no \"%2\"").arg(scene_, outlet->name()));
}

void ViewController::addAction(const QString& name, std::function<void(QQuickItem*)> action) {
    actions_[name] = std::move(action);
}

// A button names its action in `actionName` or its segue in `segueName`.
void ViewController::connectActions() {
    for (QQuickItem* item : view_->findChildren<QQuickItem*>()) {
        const QString name = item->property("actionName").toString();
        const QString segue = item->property("segueName").toString();
        if (!segue.isEmpty())
            Action::set(item, [this, segue] { performSegue(segue); });
        if (name.isEmpty())
            continue;
        const auto action = actions_.find(name);
        if (action == actions_.end())
            throw StoryboardError(
                QStringLiteral("scene \"%1\": no action \"%2\"").arg(scene_, name));
        Action::set(item, [action, item] { action->second(item); });
    }
}

void ViewController::setTitle(const QString& title) {
    if (title == title_)
        return;
    title_ = title;
    emit titleChanged();
}

void ViewController::addChildViewController(const std::shared_ptr<ViewController>& child) {
    if (child->parent_ == this)
        return;
    child->removeFromParentViewController();
    child->willMoveToParentViewController(this);
    child->parent_ = this;
    children_.push_back(child);
}

void ViewController::removeFromParentViewController() {
    if (parent_ == nullptr)
        return;
    const auto self = shared_from_this();  // the parent may have held the last reference
    std::erase(std::exchange(parent_, nullptr)->children_, self);
    didMoveToParentViewController(nullptr);
}

void ViewController::cameFrom(std::shared_ptr<const Storyboard> storyboard, const QString& scene) {
    storyboard_ = std::move(storyboard);
    scene_ = scene;
}

void ViewController::performSegue(const QString& identifier) {
    if (!storyboard_)
        throw MissingSegue(QStringLiteral("no storyboard for segue \"%1\"").arg(identifier));
    storyboard_->performSegue(*this, identifier);
}

}  // namespace tarnwick
