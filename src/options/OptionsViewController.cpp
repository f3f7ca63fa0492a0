#include "options/OptionsViewController.h"

#include "screens/ScreenStyle.h"

namespace tarnwick {

OptionsViewController::OptionsViewController(const ScreenServices& services)
    : TaskScreen(services),
      operations_(services.catalogue, services.runner, services.files, *this, queues()) {
    addOperation("recreateApplicationFolders", &OptionsOperations::recreateApplicationFolders);
    addOperation("removeSafeguard", &OptionsOperations::removeSafeguard);
    addOperation("removeSourcesList", &OptionsOperations::removeSourcesList);
    addOperation("respring", &OptionsOperations::respring);
    addOperation("reboot", &OptionsOperations::reboot);
    addOperation("backupSize", &OptionsOperations::backupSize);
}

void OptionsViewController::addOperation(const QString& name,
                                         void (OptionsOperations::*operation)()) {
    addAction(name, [this, operation](QQuickItem*) { (operations_.*operation)(); });
}

void OptionsViewController::viewDidLoad() {
    TaskScreen::viewDidLoad();
    setTitle("Options");
    operations_.readStorageFigures([this](const std::string& total, const std::string& free) {
        totalUserMemory->setProperty("text", QString::fromStdString(total));
        freeUserMemory->setProperty("text", QString::fromStdString(free));
    });
    fillLabel(mainOptions.get(),
              "Use these options to clean your backup folder or to help you applying changes");
    styleElements();
    pinContentView();
    wireMenu();
}

void OptionsViewController::styleElements() {
    styleHeading(applicationFilesAndFoldersTitle.get());
    styleButton(recreateApplicationFoldersButton.get());
    styleButton(removeSafeguardButton.get());
    styleButton(removeSourcesListButton.get());
    styleHeading(applyChangesOptionsTitle.get());
    styleButton(respringButton.get());
    styleButton(rebootButton.get());
    styleHeading(miscellaneousTitle.get());
    styleButton(backupSizeButton.get());
}

void OptionsViewController::alertClickedButtonAtIndex(const Alert& alert, int index) {
    operations_.alertViewClickedButtonAtIndex(alert, index);
}

}  // namespace tarnwick
