#include "platform/controllers/NavigationController.h"

#include "platform/controllers/NavigationBar.h"
#include "platform/motion/Frames.h"
#include "platform/views/QmlEngine.h"
#include "platform/views/Stage.h"

namespace tarnwick {

namespace {

QVariantMap barProperties() {
    const NavigationBarLook& look = NavigationBarLook::ofApplication();
    return {{"color", look.barTint},
            {"itemTint", look.itemTint},
            {"titleColor", look.titleColor},
            {"titleFont", look.titleFont},
            {"titleShadowColor", look.titleShadowColor},
            {"titleShadowOffset", look.titleShadowOffset},
            {"z", 1}};  // above content that scrolls
}

// The bar at the top, with the content below.
class NavigationView : public Stage {
public:
    NavigationView()
        : bar(createQmlItem(QStringLiteral("NavigationBar"), this, barProperties())),
          content(new QQuickItem(this)),
          busyLine(createQmlItem(QStringLiteral("BusyLine"), this, {{"z", 1}})) {
        bar->setHeight(navigationBarHeight);
        busyLine->setY(navigationBarHeight);
        content->setY(navigationBarHeight);
    }

    // The keyboard goes from the top down, too.
    QQuickItem* const bar;
    QQuickItem* const content;
    QQuickItem* const busyLine;

protected:
    void geometryChange(const QRectF& newGeometry, const QRectF& oldGeometry) override {
        Stage::geometryChange(newGeometry, oldGeometry);
        bar->setWidth(newGeometry.width());
        busyLine->setWidth(newGeometry.width());
        content->setSize({newGeometry.width(), newGeometry.height() - navigationBarHeight});
    }
};

}  // namespace

void NavigationController::setRootViewController(const std::shared_ptr<ViewController>& root) {
    if (root_) {
        if (root_->isViewLoaded())
            removeFromSuperview(root_->view());
        disconnect(root_.get(), nullptr, this, nullptr);
        root_->removeFromParentViewController();
    }
    root_ = root;
    addChildViewController(root_);
    root_->didMoveToParentViewController(this);
    if (isViewLoaded())
        showRoot();
}

void NavigationController::setBusy(bool busy) {
    static_cast<NavigationView*>(view())->busyLine->setProperty("busy", busy);
}

void NavigationController::loadView() {
    setView(new NavigationView);
    if (storyboard() && !root_)
        performSegue(segueRootIdentifier);
    else if (root_)
        showRoot();
}

void NavigationController::showRoot() {
    auto* container = static_cast<NavigationView*>(view());
    QQuickItem* screen = root_->view();
    addFillingSubview(container->content, screen);
    container->bar->setProperty("leftItem", screen->property("leftBarButtonItem"));
    connect(root_.get(), &ViewController::titleChanged, this, &NavigationController::showTitle);
    showTitle();
}

void NavigationController::showTitle() {
    static_cast<NavigationView*>(view())->bar->setProperty("title", root_->title());
}

void NavigationRootSegue::perform() {
    if (auto* navigation = qobject_cast<NavigationController*>(ends().source.get()))
        navigation->setRootViewController(ends().destination);
}

}  // namespace tarnwick
