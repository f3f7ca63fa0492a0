#include "platform/controllers/Storyboard.h"

#include <gtest/gtest.h>

#include <QFile>
#include <QTemporaryDir>

#include "platform/controllers/NavigationBar.h"
#include "platform/controllers/NavigationController.h"
#include "platform/controllers/Outlet.h"
#include "platform/controllers/StateCoder.h"
#include "platform/controllers/StatusBar.h"
#include "support/SteppedClock.h"
#include "ui/reveal/RevealSegues.h"
#include "ui/reveal/RevealViewController.h"

namespace tarnwick::testing {
namespace {

const QByteArray scenes = R"(
import Tarnwick
Storyboard {
    initialScene: "RevealViewController"
    Scene {
        identifier: "RevealViewController"; controller: "Reveal"
        Segue { identifier: "sw_front"; destination: "screenNC"; kind: "Set" }
        Segue { identifier: "sw_rear"; destination: "menu"; kind: "Set" }
        Segue { identifier: "another"; destination: "menu"; kind: "Set" }
    }
    Scene {
        identifier: "menu"; controller: "Screen"; view: Qt.resolvedUrl("Screen.qml")
        Segue { identifier: "push"; destination: "screenNC"; kind: "Push" }
        Segue { identifier: "lost"; destination: "nowhere"; kind: "Push" }
        Segue { identifier: "odd"; destination: "menu"; kind: "Odd" }
    }
    Scene {
        identifier: "screenNC"; controller: "Navigation"
        Segue { identifier: "root"; destination: "screen"; kind: "Root" }
    }
    Scene { identifier: "screen"; controller: "Screen"; view: Qt.resolvedUrl("Screen.qml") }
    Scene { identifier: "bare"; controller: "Screen"; view: Qt.resolvedUrl("Bare.qml") }
    Scene { identifier: "broken"; controller: "Screen"; view: Qt.resolvedUrl("Broken.qml") }
    Scene { identifier: "acting"; controller: "Screen"; view: Qt.resolvedUrl("Acting.qml") }
    Scene { identifier: "unknown"; controller: "Nobody" }
})";

class Screen : public ViewController {
public:
    Outlet<QQuickItem> heading{this, "heading"};
    Outlet<BarButtonItem> sidebarButton{this, "sidebarButton"};
    int loads = 0;
    int presses = 0;
    RevealViewController* container = nullptr;

    Screen() {
        addAction("press", [this](QQuickItem*) { ++presses; });
    }

protected:
    void viewDidLoad() override {
        ++loads;
        setTitle("A title");
        container = revealViewController(*this);
    }
};

class StoryboardTest : public ::testing::Test {
protected:
    StoryboardTest() {
        write("Main.qml", scenes);
        write("Screen.qml",
              "import QtQuick\nimport Tarnwick\n"
              "Item { property BarButtonItem leftBarButtonItem:\n"
              "    BarButtonItem { objectName: \"sidebarButton\"; title: \"Menu\" }\n"
              "  Flickable { Text { objectName: \"heading\"; text: \"Here\" }\n"
              "    BareButton { objectName: \"press\"; actionName: \"press\" }\n"
              "    BareButton { objectName: \"go\"; segueName: \"push\" } } }");
        write(
            "Acting.qml",
            "import QtQuick\nimport Tarnwick\n"
            "Item { property BarButtonItem item: BarButtonItem { objectName: \"sidebarButton\" }\n"
            "  Text { objectName: \"heading\" } BareButton { actionName: \"missing\" } }");
        write("Bare.qml", "import QtQuick\nItem { Text { objectName: \"heading\" } }");
        write("Broken.qml", "import QtQuick\nItem { nothing: 1 }");
        storyboard = Storyboard::load(QUrl::fromLocalFile(folder.filePath("Main.qml")), classes());
    }
    ~StoryboardTest() override { finishDeletions(); }

    static StoryboardClasses classes() {
        StoryboardClasses classes;
        classes.addController("Reveal", [] { return makeViewController<RevealViewController>(); });
        classes.addController("Navigation",
                              [] { return makeViewController<NavigationController>(); });
        classes.addController("Screen", [] { return makeViewController<Screen>(); });
        classes.addSegue<RevealViewControllerSegueSetController>("Set");
        classes.addSegue<RevealViewControllerSeguePushController>("Push");
        classes.addSegue<NavigationRootSegue>("Root");
        return classes;
    }

    void write(const QString& name, const QByteArray& text) {
        QFile file(folder.filePath(name));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(text);
    }

    std::string faultOf(const std::function<void()>& action) {
        try {
            action();
        } catch (const StoryboardError& error) {
            return error.what();
        }
        return "none";
    }

    QTemporaryDir folder;
    std::shared_ptr<const Storyboard> storyboard;
};

TEST_F(StoryboardTest, AContainerLoadsWhatItsSceneHasAndDoesWithoutTheRest) {
    const auto reveal = std::static_pointer_cast<RevealViewController>(
        storyboard->instantiateInitialViewController());
    EXPECT_EQ(reveal->frontViewController(), nullptr);
    reveal->view();
    EXPECT_EQ(reveal->rightViewController(), nullptr);
    const auto menu = std::static_pointer_cast<Screen>(reveal->rearViewController());
    EXPECT_FALSE(menu->isViewLoaded()) << "no screen is made before it is shown";
    const auto navigation =
        std::static_pointer_cast<NavigationController>(reveal->frontViewController());
    const auto screen = std::static_pointer_cast<Screen>(navigation->rootViewController());
    EXPECT_EQ(screen->loads, 1);
    EXPECT_EQ(screen->container, reveal.get());
    EXPECT_EQ(screen->heading->property("text").toString(), "Here");
    EXPECT_EQ(revealViewController(*reveal), nullptr);

    reveal->performSegue("another");
    EXPECT_EQ(reveal->rearViewController(), menu) << "its identifier names no child";
    const auto click = [&menu](const char* name) {
        QMetaObject::invokeMethod(menu->view()->findChild<QQuickItem*>(name), "clicked");
    };
    click("press");
    EXPECT_EQ(menu->presses, 1);
    click("go");
    EXPECT_NE(reveal->frontViewController(), navigation);
}

TEST_F(StoryboardTest, TheNavigationBarShowsTheScreensTitleAndButton) {
    const auto navigation = storyboard->instantiateViewController("screenNC");
    QQuickItem* bar = nullptr;
    for (QQuickItem* item : navigation->view()->childItems())
        if (item->property("title").isValid())
            bar = item;
    ASSERT_NE(bar, nullptr);
    EXPECT_EQ(bar->property("title").toString(), "A title");
    auto* item = bar->property("leftItem").value<BarButtonItem*>();
    ASSERT_NE(item, nullptr);
    int presses = 0;
    item->setAction([&presses] { ++presses; });
    item->press();
    EXPECT_EQ(presses, 1);
}

TEST_F(StoryboardTest, FaultsAreNamed) {
    const std::pair<const char*, const char*> rows[] = {
        {"nowhere", "no scene \"nowhere\""},
        {"unknown", "scene \"unknown\": no class \"Nobody\""},
        {"bare", "scene \"bare\" has no \"sidebarButton\""},
        {"acting", "no action \"missing\""},
        {"broken", "non-existent property \"nothing\""}};
    for (const auto& [scene, fault] : rows) {
        const std::string found = faultOf(
            [&, identifier = scene] { storyboard->instantiateViewController(identifier)->view(); });
        EXPECT_NE(found.find(fault), std::string::npos) << found;
    }
    const auto menu = storyboard->instantiateViewController("menu");
    EXPECT_EQ(faultOf([&menu] { menu->performSegue("lost"); }), "no scene \"nowhere\"");
    EXPECT_EQ(faultOf([&menu] { menu->performSegue("odd"); }), "segue \"odd\": no class \"Odd\"");
    EXPECT_THROW(menu->performSegue("none"), MissingSegue);
    EXPECT_THROW(makeViewController<Screen>()->performSegue("none"), MissingSegue);
}

TEST_F(StoryboardTest, AContainersStateIsWrittenAndRestored) {
    const auto reveal = std::static_pointer_cast<RevealViewController>(
        storyboard->instantiateInitialViewController());
    reveal->view();
    reveal->rearViewController()->restorationIdentifier = "menu";
    reveal->rearViewRevealWidth = 200;
    reveal->setFrontViewShadowOffset({1, 7});
    reveal->setFrontViewPosition(FrontPositionSlidRight);
    StateCoder coder(storyboard);
    reveal->encodeRestorableState(coder);
    EXPECT_EQ(coder.keys().size(), 28);
    EXPECT_EQ(coder.keys().mid(12, 2).join(" "), "_toggleAnimationDuration _toggleAnimationType");

    const auto restored = std::static_pointer_cast<RevealViewController>(
        RevealViewController::viewControllerWithRestorationIdentifierPath({"root", "c"}, coder));
    EXPECT_EQ(restored->restorationIdentifier, "c");
    restored->decodeRestorableState(coder);
    EXPECT_EQ(restored->rearViewRevealWidth, 200);
    EXPECT_EQ(restored->frontViewShadow(), reveal->frontViewShadow());
    EXPECT_EQ(restored->rearViewController()->scene(), "menu");
    EXPECT_EQ(restored->frontViewController(), nullptr) << "it had no identifier";
    restored->view();
    EXPECT_EQ(restored->frontViewPosition(), FrontPositionSlidRight);
    EXPECT_EQ(RevealViewController::viewControllerWithRestorationIdentifierPath({}, StateCoder()),
              nullptr);
}

TEST(StatusBar, MakesRoomOnlyWhereItCoversTheView) {
    EXPECT_EQ(statusBarAdjustment({0, 0, 375, 20}, {0, 0, 375, 667}), 20);
    EXPECT_EQ(statusBarAdjustment({0, 0, 20, 667}, {0, 0, 375, 667}), 20);
    EXPECT_EQ(statusBarAdjustment({0, 0, 375, 20}, {0, 20, 375, 647}), 0);
}

}  // namespace
}  // namespace tarnwick::testing
