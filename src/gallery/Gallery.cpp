#include "gallery/Gallery.h"

#include "gallery/Scenes.h"
#include "platform/controllers/Look.h"
#include "platform/controllers/NavigationBar.h"
#include "platform/controllers/Outlet.h"
#include "platform/controllers/Storyboard.h"
#include "platform/gestures/TapGestureRecognizer.h"
#include "platform/motion/Pause.h"
#include "ui/hud/ProgressHUD.h"
#include "ui/reveal/RevealSegues.h"

// Referred to, so that the linker takes the scenes from their library.
extern void qml_register_types_Tarnwick_Gallery();

namespace tarnwick {

namespace {

constexpr double busyTime = 3.0;  // seconds
constexpr QColor blue(0, 122, 255);

// A screen that opens the menu by its button and by a drag.
class ScreenController : public ViewController {
public:
    Outlet<BarButtonItem> sidebarButton{this, "sidebarButton"};

protected:
    void viewDidLoad() override {
        setTitle(scene() == "blue" ? "Gallery" : "Another screen");
        wireToRevealContainer(*this, *sidebarButton.get());
    }
};

QVariantList rows() {
    QVariantList rows;
    for (const Scene& scene : scenes())
        rows.append(QVariantMap{{"group", scene.group}, {"title", scene.title}});
    return rows;
}

StoryboardClasses classes() {
    StoryboardClasses classes;
    const auto add = [&classes]<class Controller>(const QString& name) {
        classes.addController(name, [] { return makeViewController<Controller>(); });
    };
    addRevealClasses(classes);
    add.operator()<ViewController>("MenuController");
    add.operator()<ScreenController>("ScreenController");
    add.operator()<ViewController>("ViewController");
    return classes;
}

void setLook() {
    Look::setTint(blue);
    NavigationBarLook& look = NavigationBarLook::ofApplication();
    look.barTint = blue;
    look.itemTint = Qt::white;
    look.titleColor = Qt::white;
    look.titleFont.setPixelSize(21);
}

}  // namespace

Gallery::Gallery(Animated animated) : animated_(animated) {
    qml_register_types_Tarnwick_Gallery();
    setLook();
    resize(375, 667);
    setTitle("Gallery");
    const auto storyboard =
        Storyboard::load(QUrl("qrc:/qt/qml/Tarnwick/Gallery/GalleryStoryboard.qml"), classes());
    reveal_ = std::static_pointer_cast<RevealViewController>(
        storyboard->instantiateInitialViewController());
    setRootViewController(reveal_);
    reveal_->tapGestureRecognizer();
    QQuickItem* menu = reveal_->rearViewController()->view();
    menu->setProperty("scenes", rows());
    connect(menu, SIGNAL(chosen(int)), this, SLOT(openScene(int)));
}

Gallery::~Gallery() = default;

void Gallery::openScene(int place) {
    reveal_->setFrontViewPosition(FrontPositionClosed, Animated::Yes);
    scenes().at(static_cast<std::size_t>(place)).show(*this);
}

ProgressHUD* Gallery::showHud(int animationType) {
    QQuickItem* screen = reveal_->frontViewController()->view();
    auto* hud = new ProgressHUD(screen);
    hud->setParent(screen);
    hud->setParentItem(screen);
    hud->setRemoveFromSuperViewOnHide(true);
    hud->setAnimationType(static_cast<ProgressHUD::AnimationType>(animationType));
    hud->show(animated_);
    if (animated_ == Animated::Yes)
        hud->hideAfterDelay(Animated::Yes, busyTime);
    return hud;
}

void Gallery::showAlert(const Alert& alert) {
    const AlertTicket ticket = alerts().show(alert);
    if (alert.cancelButtonTitle.empty() && animated_ == Animated::Yes)
        (new Pause(this))->start(busyTime, [this, ticket] {
            alerts().dismiss(ticket, 0, Animated::Yes);
        });
}

void Gallery::push() {
    reveal_->rearViewController()->performSegue("push");
}

}  // namespace tarnwick
