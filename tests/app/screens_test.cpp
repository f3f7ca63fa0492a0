#include <gtest/gtest.h>

#include <QQuickItem>
#include <QTest>

#include "app/DeviceModel.h"
#include "app/SidebarViewController.h"
#include "platform/threads/PlatformQueues.h"
#include "screens/TaskScreen.h"
#include "support/Events.h"
#include "support/Finger.h"
#include "support/Operations.h"
#include "support/ProgramWindow.h"

namespace tarnwick::testing {
namespace {

class ScreensTest : public ProgramWindow {};

// With the threads of the program.
class ThreadedScreensTest : public ProgramWindow {
protected:
    ThreadedScreensTest() : ProgramWindow(&threads) {}

    // The text of the alert that comes, which is then answered.
    std::string awaitAlert(int index) {
        while (window.alerts().numberShown() == 0)
            QCoreApplication::processEvents(QEventLoop::AllEvents, 10);
        return answerAlert(index);
    }

    PlatformQueues threads;
};

TEST_F(ScreensTest, EveryScreenLoadsWithoutAWarningAtEverySize) {
    const std::pair<const char*, const char*> rows[] = {{"backup", "Backup"},
                                                        {"restore", "Restore"},
                                                        {"cloud", "Cloud"},
                                                        {"options", "Options"},
                                                        {"help", "Help"}};
    for (const auto& [row, title] : rows) {
        choose(row);
        EXPECT_EQ(screen().title(), title);
        for (const QSizeF size : {QSizeF(320, 480), QSizeF(1366, 1024), QSizeF(375, 667)}) {
            window.contentItem()->setSize(size);
            EXPECT_EQ(element("contentView")->width(), size.width()) << row;
        }
        EXPECT_EQ(screen().view()->findChild<QQuickItem*>("layer") != nullptr,
                  row != std::string("help"));
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

TEST_F(ScreensTest, LoadingBackupMakesTheSafeguardFoldersBeforeAnyButton) {
    EXPECT_EQ(diary.changes(), changesIn(literalEvents().at("folders")));
}

TEST_F(ThreadedScreensTest, ATaskCoversItsScreenAndTellsItsResult) {
    diary.entries.clear();
    press("accountsButton");
    EXPECT_NE(ProgressHUD::HUDForView(screen().view()), nullptr);
    const Entries events = literalEvents().at("save accounts, nothing zipped");
    EXPECT_EQ("alert: " + awaitAlert(0), events.back());
    EXPECT_EQ(ProgressHUD::HUDForView(screen().view()), nullptr);
    EXPECT_EQ(diary.changes(), changesIn(events));
}

TEST_F(ThreadedScreensTest, AnAnswerFindsItsScreenWhenAnotherOneIsInFront) {
    choose("restore");
    folder.put(library + "Accounts.zip", "");
    press("accountsButton");
    const std::weak_ptr<ViewController> restore = screen().weak_from_this();
    choose("help");
    EXPECT_FALSE(restore.expired());
    EXPECT_TRUE(awaitAlert(1).starts_with("Accounts Restoration"));
    EXPECT_EQ(diary.entries.back(), "run: /sbin/reboot");
    finishDeletions();
    EXPECT_TRUE(restore.expired());
}

TEST_F(ThreadedScreensTest, OptionsFillsItsFigures) {
    choose("options");
    while (element("freeUserMemory")->property("text").toString() == "\u2026")
        QCoreApplication::processEvents(QEventLoop::AllEvents, 10);
    EXPECT_EQ(element("freeUserMemory")->property("text").toString(), "12.50 GB");
    EXPECT_EQ(element("totalUserMemory")->property("text").toString(), "64.00 GB");
}

TEST_F(ScreensTest, TabReachesEveryButtonAndBringsItIntoView) {
    element("sourcesButton")->forceActiveFocus(Qt::TabFocusReason);
    for (int press = 0; press < 13; ++press)
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
    static_cast<TaskScreen&>(*screen.rootViewController()).sidebarButton->press();
    Finger(window, clock).drag({20, 300}, {300, 300});
    EXPECT_EQ(reveal->frontViewPosition(), FrontPositionClosed);
}

TEST(DeviceModel, IsExactWhereKnownAndAFamilyOtherwise) {
    const std::pair<const char*, const char*> rows[] = {
        {"iPhone8,1", "iPhone 6s"},  {"iPhone8,2", "iPhone 6s Plus"},
        {"iPhone2,1", "iPhone 3Gs"}, {"i386", "Simulator"},
        {"iPad4,9", "iPad Mini 3"},  {"iPhone8,4", "iPhone"},
        {"iPhone3,3", "iPhone"},     {"iPad5,1", "iPad"},
        {"iPod9,1", "iPod"},         {"iphone8,1", "none"},
        {"x86_64", "none"},          {"my iPad", "my i"}};
    for (const auto& [machine, name] : rows)
        EXPECT_EQ(platformTypeOf(machine).value_or("none"), name) << machine;
}

}  // namespace
}  // namespace tarnwick::testing
