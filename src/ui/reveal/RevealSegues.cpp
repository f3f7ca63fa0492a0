#include "ui/reveal/RevealSegues.h"

#include "platform/controllers/NavigationBar.h"
#include "platform/controllers/NavigationController.h"
#include "ui/reveal/RevealViewController.h"
#include "ui/reveal/RevealViewControllerPanGestureRecognizer.h"

namespace tarnwick {

RevealViewController* revealViewController(const ViewController& controller) {
    for (auto* parent = controller.parentViewController(); parent != nullptr;
         parent = parent->parentViewController())
        if (auto* reveal = qobject_cast<RevealViewController*>(parent))
            return reveal;
    return nullptr;
}

void wireToRevealContainer(ViewController& screen, BarButtonItem& sidebarButton) {
    RevealViewController* reveal = revealViewController(screen);
    if (reveal == nullptr)
        return;
    sidebarButton.setAction([reveal = QPointer(reveal)] {
        if (reveal)
            reveal->revealToggle();
    });
    addGestureRecognizer(screen.view(), reveal->panGestureRecognizer());
}

void addRevealClasses(StoryboardClasses& classes) {
    classes.addController("RevealViewController",
                          [] { return makeViewController<RevealViewController>(); });
    classes.addController("NavigationController",
                          [] { return makeViewController<NavigationController>(); });
    classes.addSegue<NavigationRootSegue>("NavigationRootSegue");
    classes.addSegue<RevealViewControllerSegueSetController>(
        "RevealViewControllerSegueSetController");
    classes.addSegue<RevealViewControllerSeguePushController>(
        "RevealViewControllerSeguePushController");
}

void RevealViewControllerSegueSetController::perform() {
    auto* reveal = qobject_cast<RevealViewController*>(ends().source.get());
    if (reveal == nullptr)
        return;
    const auto replace = [this, reveal](ChildReplacement operation) {
        reveal->performTransitionOperation(operation, ends().destination, Animated::No);
    };
    if (ends().identifier == RevealViewController::segueFrontIdentifier)
        replace(ReplaceFront);
    else if (ends().identifier == RevealViewController::segueRearIdentifier)
        replace(ReplaceRear);
    else if (ends().identifier == RevealViewController::segueRightIdentifier)
        replace(ReplaceRight);
}

void RevealViewControllerSeguePushController::perform() {
    if (auto* reveal = revealViewController(*ends().source))
        reveal->pushFrontViewController(ends().destination, Animated::Yes);
}

}  // namespace tarnwick
