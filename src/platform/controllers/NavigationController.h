#pragma once

#include "platform/controllers/Storyboard.h"
#include "platform/controllers/ViewController.h"

namespace tarnwick {

// Holds one screen below a navigation bar with the screen's title and bar button. In a storyboard,
// the segue "root" leads to the screen; it is created with the view, which is a Stage. Main thread.
class NavigationController : public ViewController {
    Q_OBJECT

public:
    static constexpr const char* segueRootIdentifier = "root";

    const std::shared_ptr<ViewController>& rootViewController() const { return root_; }
    // Replaces the former one. Must not be null.
    void setRootViewController(const std::shared_ptr<ViewController>& root);

    // A line below the bar moves while it is busy.
    void setBusy(bool busy);

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
