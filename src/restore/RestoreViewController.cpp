#include "restore/RestoreViewController.h"

namespace tarnwick {

void RestoreViewController::viewDidLoad() {
    ItemsScreen::viewDidLoad();
    setTitle("Restore");
    fillLabel(mainRestore.get(),
              "Restore your Cydia's sources and Tweaks, and other data such as your Photos, SMS, "
              "etc ...");
    completeView();
}

}  // namespace tarnwick
