#pragma once

#include "platform/controllers/NavigationController.h"
#include "screens/ScreenServices.h"

namespace tarnwick {

// Holds a screen under its bar, and shows below the bar that a task of any screen is under way.
class ScreenNavigationController : public NavigationController {
public:
    // The services outlive it.
    explicit ScreenNavigationController(const ScreenServices& services)
        : tasks_(services.gate.tasks()) {}

protected:
    void viewDidLoad() override;

private:
    TasksUnderWay& tasks_;
};

}  // namespace tarnwick
