#pragma once

#include "platform/Storyboard.h"

namespace tarnwick {

class RevealViewController;

// The reveal container that a controller is in, however deep; none if it is in none.
RevealViewController* revealViewController(const ViewController& controller);

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
