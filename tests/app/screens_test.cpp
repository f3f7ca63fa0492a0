#include <gtest/gtest.h>

#include <QQuickItem>
#include <QTest>

#include "app/AppDelegate.h"
#include "app/DeviceModel.h"
#include "app/MainInterface.h"
#include "app/SidebarViewController.h"
#include "core/SystemFileManager.h"
#include "core/SystemLog.h"
#include "platform/controllers/NavigationController.h"
#include "platform/threads/PlatformQueues.h"
#include "platform/windows/AlertView.h"
#include "platform/windows/Window.h"
#include "screens/TaskScreen.h"
#include "support/Finger.h"
#include "support/LineRecorder.h"
#include "support/RecordingMailer.h"
#include "support/TemporaryFolder.h"
#include "ui/reveal/RevealViewController.h"

namespace tarnwick::testing {
namespace {

// Whatever QML complains about fails the test that is running.
void failOnWarning(QtMsgType type, const QMessageLogContext& context, const QString& message) {
    static_cast<void>(context);
    if (type == QtWarningMsg && !message.startsWith("QStandardPaths"))
        ADD_FAILURE() << message.toStdString();
}

// The program in a phone's window, over an empty folder, with a runner that only writes down.
class ScreensTest : public ::testing::Test {
protected:
    ScreensTest() : files(folder.path()) {
        qInstallMessageHandler(failOnWarning);
        window.resize(375, 667);
        window.show();
        QCoreApplication::processEvents();
        delegate->applicationDidFinishLaunchingWithOptions({});
        reveal = std::static_pointer_cast<RevealViewController>(
            storyboard->instantiateInitialViewController());
        window.setRootViewController(reveal);
    }
    ~ScreensTest() override {
        window.setRootViewController(nullptr);
        reveal.reset();
        finishDeletions();
        qInstallMessageHandler(nullptr);
    }

    ViewController& screen() {
        auto& navigation = static_cast<NavigationController&>(*reveal->frontViewController());
        return *navigation.rootViewController();
    }
    QQuickItem* element(const char* name) { return screen().view()->findChild<QQuickItem*>(name); }
    void press(const char* name) { QMetaObject::invokeMethod(element(name), "clicked"); }
    void choose(const QString& row) {
        reveal->rearViewController()->performSegue(row);
        clock.advance(1.0);
    }
    // The title of the alert that comes, which is then answered.
    std::string answerAlert(int index) {
        while (window.alerts().numberShown() == 0)
            QCoreApplication::processEvents(QEventLoop::AllEvents, 10);
        AlertView* alert = window.alerts().top();
        const std::string title = alert->alert().title;
        emit alert->buttonPressed(index);
        clock.advance(0.3);
        return title;
    }

    TemporaryFolder folder;
    SystemFileManager files;
    LineRecorder runner;
    ItemCatalogue catalogue;
    SteppedClock clock;
    Window window;
    PlatformQueues queues;
    RecordingMailer mailer;
    SystemLog log;
    ScreenServices services = {catalogue, runner, files, queues, window.alerts(), mailer, log};
    std::shared_ptr<AppDelegate> delegate = std::make_shared<AppDelegate>(window, services);
    std::shared_ptr<const Storyboard> storyboard = loadMainStoryboard(services);
    std::shared_ptr<RevealViewController> reveal;
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
    EXPECT_TRUE(files.exists("/var/mobile/Library/Preferences/Tarnwick/TarnwickLibrary"));
    EXPECT_TRUE(runner.lines().empty());
    press("sourcesButton");
    EXPECT_EQ(answerAlert(0), "Cydia Sources Backup");
}

TEST_F(ScreensTest, ATaskCoversItsScreenAndTellsItsResult) {
    press("accountsButton");
    EXPECT_NE(ProgressHUD::HUDForView(screen().view()), nullptr);
    EXPECT_EQ(answerAlert(0), "Accounts Backup Error");
    clock.advance(0.4);
    EXPECT_EQ(ProgressHUD::HUDForView(screen().view()), nullptr);
    EXPECT_EQ(runner.lines().front(),
              "cp -R /var/mobile/Library/Accounts "
              "/var/mobile/Library/Preferences/Tarnwick/TarnwickLibrary/");
}

TEST_F(ScreensTest, AnAnswerFindsItsScreenWhenAnotherOneIsInFront) {
    choose("restore");
    files.createDirectory("/var/mobile/Library/Preferences/Tarnwick/TarnwickLibrary");
    files.writeText("/var/mobile/Library/Preferences/Tarnwick/TarnwickLibrary/Accounts.zip", "");
    press("accountsButton");
    const std::weak_ptr<ViewController> restore = screen().weak_from_this();
    choose("help");
    EXPECT_FALSE(restore.expired());
    EXPECT_EQ(answerAlert(1), "Accounts Restoration");
    EXPECT_EQ(runner.lines().back(), "/sbin/reboot");
    finishDeletions();
    EXPECT_TRUE(restore.expired());
}

TEST_F(ScreensTest, OptionsAsksBeforeItActsAndFillsItsFigures) {
    files.createDirectory("/private/var");
    choose("options");
    while (element("freeUserMemory")->property("text").toString() == "\u2026")
        QCoreApplication::processEvents(QEventLoop::AllEvents, 10);
    EXPECT_TRUE(element("totalUserMemory")->property("text").toString().endsWith("GB"));
    press("respringButton");
    EXPECT_EQ(answerAlert(0), "Respring");
    EXPECT_TRUE(runner.lines().empty());
    press("respringButton");
    answerAlert(1);
    EXPECT_EQ(runner.lines(), std::vector<std::string>{"killall backboardd"});
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
    LifeCycle lifeCycle(window, *delegate);
    window.setVisible(false);
    window.setVisible(true);
    EXPECT_EQ(runner.lines(), std::vector<std::string>{"/usr/bin/killall RootTarnwick2"});
    window.close();
    EXPECT_EQ(runner.lines().size(), 1U);
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
