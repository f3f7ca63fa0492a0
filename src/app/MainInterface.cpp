#include "app/MainInterface.h"

#include "app/MenuContainer.h"
#include "app/SidebarViewController.h"
#include "backup/MainViewController.h"
#include "help/HelpViewController.h"
#include "mail/CloudViewController.h"
#include "options/OptionsViewController.h"
#include "restore/RestoreViewController.h"
#include "screens/ScreenNavigationController.h"
#include "screens/Symbols.h"
#include "ui/reveal/RevealSegues.h"

// Referred to, so that the linker takes the scenes from their library.
extern void qml_register_types_Tarnwick_Storyboard();

namespace tarnwick {

namespace {

template <class Controller, class... Arguments>
void add(StoryboardClasses& classes, const QString& name, Arguments&... arguments) {
    classes.addController(name,
                          [&arguments...] { return makeViewController<Controller>(arguments...); });
}

StoryboardClasses classesFor(const ScreenServices& services) {
    StoryboardClasses classes;
    addRevealClasses(classes);
    add<MenuContainer>(classes, "MenuContainer");
    add<ScreenNavigationController>(classes, "ScreenNavigationController", services);
    add<SidebarViewController>(classes, "SidebarViewController", services.gate.tasks());
    add<MainViewController>(classes, "MainViewController", services);
    add<RestoreViewController>(classes, "RestoreViewController", services);
    add<OptionsViewController>(classes, "OptionsViewController", services);
    add<HelpViewController>(classes, "HelpViewController");
    add<CloudViewController>(classes, "CloudViewController", services.files, services.mailer,
                             services.log);
    return classes;
}

}  // namespace

std::shared_ptr<const Storyboard> loadMainStoryboard(const ScreenServices& services) {
    qml_register_types_Tarnwick_Storyboard();
    addProgramSymbols();
    return Storyboard::load(QUrl("qrc:/qt/qml/Tarnwick/Storyboard/MainStoryboard.qml"),
                            classesFor(services));
}

}  // namespace tarnwick
