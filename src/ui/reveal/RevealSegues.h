#pragma once

#include "platform/controllers/Storyboard.h"

namespace tarnwick {

class BarButtonItem;
class RevealViewController;

// The reveal container that a controller is in, however deep; none if it is in none.
RevealViewController* revealViewController(const ViewController& controller);

// Has the bar button open and close the container that the screen is in, and a drag on the screen
// as well. Nothing is wired outside a container. The screen's view is loaded by then.
void wireToRevealContainer(ViewController& screen, BarButtonItem& sidebarButton);

// Adds what a storyboard with a container needs: the container, navigation controllers, and the
// segues of both.
void addRevealClasses(StoryboardClasses& classes);

// Makes the destination a child of the container that the segue starts from: "sw_front", "sw_rear"
// or "sw_right" says which; another identifier does nothing.
class RevealViewControllerSegueSetController : public StoryboardSegue {
public:
    using StoryboardSegue::StoryboardSegue;
    void perform() override;
};

// Pushes the destination as the front of the container that the source is in.
class RevealViewControllerSeguePushController : public StoryboardSegue {
public:
    using StoryboardSegue::StoryboardSegue;
    void perform() override;
};

}  // namespace tarnwick
