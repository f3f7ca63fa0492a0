#include "options/OptionsViewController.h"

namespace tarnwick {

void OptionsViewController::viewDidLoad() {
    OperationsScreen::viewDidLoad();
    setTitle("Options");
    operations().readStorageFigures([this](const std::string& total, const std::string& free) {
        totalUserMemory->setProperty("text", QString::fromStdString(total));
        freeUserMemory->setProperty("text", QString::fromStdString(free));
    });
    fillLabel(mainOptions.get(),
              "Use these options to clean your backup folder or to help you applying changes");
    completeView();
}

}  // namespace tarnwick
