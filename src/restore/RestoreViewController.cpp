#include "restore/RestoreViewController.h"

#include "screens/ScreenStyle.h"

namespace tarnwick {

RestoreViewController::RestoreViewController(const ScreenServices& services)
    : ItemsScreen(services),
      operations_(services.catalogue, services.runner, services.files, *this, queues()) {
    for (const RestoreAction& action : restoreActions(services.catalogue))
        addAction(QString::fromStdString(action.name),
                  [this, action](QQuickItem*) { action.run(operations_); });
}

void RestoreViewController::viewDidLoad() {
    ItemsScreen::viewDidLoad();
    setTitle("Restore");
    fillLabel(mainRestore.get(),
              "Restore your Cydia's sources and Tweaks, and other data such as your Photos, SMS, "
              "etc ...");
    styleElements();
    pinContentView();
    wireMenu();
}

void RestoreViewController::alertClickedButtonAtIndex(const Alert& alert, int index) {
    operations_.alertViewClickedButtonAtIndex(alert, index);
}

}  // namespace tarnwick
