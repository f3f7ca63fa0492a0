#include "backup/MainViewController.h"

#include "screens/ScreenStyle.h"

namespace tarnwick {

MainViewController::MainViewController(const ScreenServices& services)
    : ItemsScreen(services),
      operations_(services.catalogue, services.runner, services.files, *this, queues()) {
    for (const BackupAction& action : backupActions(services.catalogue))
        addAction(QString::fromStdString(action.name),
                  [this, action](QQuickItem*) { action.run(operations_); });
}

void MainViewController::viewDidLoad() {
    ItemsScreen::viewDidLoad();
    setTitle("Backup");
    operations_.ensureSafeguardFolders();
    fillLabel(mainBackup.get(),
              "Backup your Cydia's sources and Tweaks, and other data such as your Photos, SMS, "
              "etc ...");
    styleElements();
    pinContentView();
    wireMenu();
}

}  // namespace tarnwick
