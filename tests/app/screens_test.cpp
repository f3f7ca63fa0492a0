#include <gtest/gtest.h>

#include <QQuickItem>
#include <QTest>

#include "app/DeviceModel.h"
#include "app/SidebarViewController.h"
#include "cli/Words.h"
#include "screens/TaskScreen.h"
#include "support/Events.h"
#include "support/Finger.h"
#include "support/ProgramWindow.h"

namespace tarnwick::testing {
namespace {

class ScreensTest : public ProgramWindow {};

TEST_F(ScreensTest, EveryScreenLoadsWithoutAWarningAtEverySize) {
    EXPECT_EQ(diary.changes(), changesIn(literalEvents().at("folders"))) << "before any button";
    for (const QString title : {"Backup", "Restore", "Cloud", "Options", "Help"}) {
        choose(title.toLower());
        EXPECT_EQ(screen().title(), title);
        for (const QSizeF size : {QSizeF(320, 480), QSizeF(1366, 1024), QSizeF(375, 667)}) {
            window.contentItem()->setSize(size);
            EXPECT_EQ(element("contentView")->width(), size.width()) << title.toStdString();
        }
        EXPECT_EQ(element("layer") != nullptr, title != "Help");
    }
}

TEST_F(ScreensTest, TheMenuHasItsRowsAndKeepsItsListToItself) {
    auto& menu = static_cast<SidebarViewController&>(*reveal->rearViewController());
    menu.view();
    ASSERT_EQ(menu.numberOfRowsInSection(0), 6);
    const char* const rows[] = {"title", "backup", "restore", "cloud", "options", "help"};
    for (int row = 0; row < 6; ++row) {
        const QQuickItem* cell = menu.rows->childItems().at(row);
        EXPECT_EQ(cell->property("reuseIdentifier").toString(), rows[row]);
        EXPECT_EQ(cell->property("selectionStyle").toInt(), 2);
    }
    EXPECT_FALSE(menu.menuItems());
}

TEST_F(ScreensTest, TabReachesEveryButtonAndBringsItIntoView) {
    element("sourcesButton")->forceActiveFocus(Qt::TabFocusReason);
    for (std::size_t press = 1; press < targetWords(catalogue).size(); ++press)
        QTest::keyClick(&window, Qt::Key_Tab);
    EXPECT_EQ(window.activeFocusItem(), element("voicemailsButton"));
    const QRectF frame = element("voicemailsButton")->mapRectToScene({0, 0, 10, 44});
    EXPECT_LE(frame.bottom(), 667);
    EXPECT_GE(frame.top(), 44);
}

TEST_F(ScreensTest, TheBackgroundEndsTheProgramAndNothingElseDoes) {
    AppDelegate delegate(window, services);
    LifeCycle lifeCycle(window, delegate);
    diary.entries.clear();
    window.setVisible(false);
    window.setVisible(true);
    window.close();
    EXPECT_EQ(diary.entries, Entries{"run: /usr/bin/killall RootTarnwick2"});
}

TEST_F(ScreensTest, AScreenOutsideTheContainerIsNotWired) {
    const auto alone = storyboard->instantiateViewController("backupNC");
    window.setRootViewController(alone);
    auto& screen = static_cast<NavigationController&>(*alone);
    auto& button = static_cast<TaskScreen&>(*screen.rootViewController()).sidebarButton;
    EXPECT_FALSE(button->hasAction()) << "no bar shows it";
    button->press();
    Finger(window, clock).drag({20, 300}, {300, 300});
    EXPECT_EQ(reveal->frontViewPosition(), FrontPositionClosed);
}

TEST(DeviceModel, IsExactWhereKnownAndAFamilyOtherwise) {
    const std::pair<const char*, const char*> rows[] = {
        {"iPhone8,1", "iPhone 6s"}, {"iPhone8,2", "iPhone 6s Plus"},
        {"iPhone8,4", "iPhone"},    {"iPod9,1", "iPod"},
        {"x86_64", "none"},         {"my iPad", "my i"}};
    for (const auto& [machine, name] : rows)
        EXPECT_EQ(platformTypeOf(machine).value_or("none"), name) << machine;
}

}  // namespace
}  // namespace tarnwick::testing
