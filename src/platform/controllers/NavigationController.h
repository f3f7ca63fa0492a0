#pragma once

#include "platform/controllers/Storyboard.h"
#include "platform/controllers/ViewController.h"

namespace tarnwick {

// Holds one screen below a navigation bar that shows the screen's title and its bar button. A
// screen from a storyboard is made when the view is, over the segue "root". Main thread.
class NavigationController : public ViewController {
    Q_OBJECT

public:
    static constexpr const char* segueRootIdentifier = "root";

    const std::shared_ptr<ViewController>& rootViewController() const { return root_; }
    // Takes the place of the one before. Never none.
    void setRootViewController(const std::shared_ptr<ViewController>& root);

protected:
    void loadView() override;

private:
    void showRoot();
    void showTitle();

    std::shared_ptr<ViewController> root_;
};

// Makes the destination the root of the navigation controller that the segue starts from.
class NavigationRootSegue : public StoryboardSegue {
public:
    using StoryboardSegue::StoryboardSegue;
    void perform() override;
};

}  // namespace tarnwick
