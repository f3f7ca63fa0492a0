#include "screens/ScreenNavigationController.h"

namespace tarnwick {

void ScreenNavigationController::viewDidLoad() {
    NavigationController::viewDidLoad();
    connect(&tasks_, &TasksUnderWay::changed, this, [this] { setBusy(tasks_.isAny()); });
    setBusy(tasks_.isAny());
}

}  // namespace tarnwick
