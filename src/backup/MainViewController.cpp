#include "backup/MainViewController.h"

namespace tarnwick {

void MainViewController::viewDidLoad() {
    ItemsScreen::viewDidLoad();
    setTitle("Backup");
    operations().ensureSafeguardFolders();
    fillLabel(mainBackup.get(),
              "Backup your Cydia's sources and Tweaks, and other data such as your Photos, SMS, "
              "etc ...");
    completeView();
}

}  // namespace tarnwick
