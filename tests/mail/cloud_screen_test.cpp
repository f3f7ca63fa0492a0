#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QTest>

#include "cli/InPlaceQueues.h"
#include "core/SafeguardPaths.h"
#include "core/SystemFileManager.h"
#include "mail/CloudViewController.h"
#include "mail/ComposerMailer.h"
#include "platform/controllers/NavigationController.h"
#include "platform/controllers/Storyboard.h"
#include "platform/windows/ModalPresentation.h"
#include "platform/windows/Window.h"
#include "support/Finger.h"
#include "support/KeptLog.h"
#include "support/RecordingMailer.h"
#include "support/SteppedClock.h"
#include "support/TemporaryFolder.h"
#include "ui/reveal/RevealViewController.h"

extern void qml_register_types_Tarnwick_Storyboard();

namespace tarnwick::testing {
namespace {

// The Cloud screen in the reveal container, as the menu opens it.
class CloudScreenTest : public ::testing::Test {
protected:
    CloudScreenTest() {
        qml_register_types_Tarnwick_Storyboard();
        StoryboardClasses classes;
        classes.addController("CloudViewController", [this] {
            return makeViewController<CloudViewController>(files, mailer, log);
        });
        classes.addController("NavigationController",
                              [] { return makeViewController<NavigationController>(); });
        classes.addSegue<NavigationRootSegue>("NavigationRootSegue");
        const auto navigation = std::static_pointer_cast<NavigationController>(
            Storyboard::load(QUrl("qrc:/qt/qml/Tarnwick/Storyboard/MainStoryboard.qml"), classes)
                ->instantiateViewController("cloudNC"));
        reveal = makeViewController<RevealViewController>(makeViewController<ViewController>(),
                                                          navigation);
        window.resize(375, 667);
        window.setRootViewController(reveal);
        window.show();
        QCoreApplication::processEvents();
        cloud = std::static_pointer_cast<CloudViewController>(navigation->rootViewController());
    }
    ~CloudScreenTest() override {
        window.setRootViewController(nullptr);
        reveal.reset();
        cloud.reset();
        finishDeletions();
    }

    QQuickItem* item(const char* name) { return cloud->view()->findChild<QQuickItem*>(name); }
    void pressSend() {
        static_cast<void>(window.grabWindow());
        QQuickItem* button = item("sendBackupButton");
        const QPointF middle = button->mapToScene({button->width() / 2, button->height() / 2});
        QTest::mouseClick(&window, Qt::LeftButton, {}, middle.toPoint());
        clock.advance(sheetDuration + 0.01);
    }
    // What is sent when the person fills in an address and nothing else.
    ComposedMail sentMail() {
        pressSend();
        QQuickItem* composer = window.modalPresentation().presented()->view();
        composer->findChild<QQuickItem*>("recipientsField")->setProperty("text", "me@example.org");
        for (auto* button : composer->findChildren<QQuickItem*>())
            if (button->property("actionName") == "send")
                QMetaObject::invokeMethod(button, "clicked");
        return mailer.sent.back();
    }

    SteppedClock clock;
    TemporaryFolder folder;
    SystemFileManager files{folder.path()};
    RecordingMailer mailer;
    KeptLog log;
    Window window;
    std::shared_ptr<CloudViewController> cloud;
    std::shared_ptr<RevealViewController> reveal;
};

TEST_F(CloudScreenTest, IsStyledPinnedAndWiredToTheMenu) {
    EXPECT_EQ(cloud->title(), "Cloud");
    const auto* layer = item("sendBackupButton")->findChild<QQuickItem*>("layer");
    ASSERT_NE(layer, nullptr);
    EXPECT_EQ(layer->property("color").value<QColor>(), QColor::fromRgbF(0, 122 / 255.0F, 1));
    for (const int width : {320, 1024}) {
        cloud->view()->setWidth(width);
        EXPECT_EQ(item("contentView")->width(), width);
        EXPECT_EQ(item("contentView")->x(), 0);
    }
    cloud->view()->findChild<BarButtonItem*>("sidebarButton")->press();
    EXPECT_EQ(reveal->frontViewPosition(), FrontPositionSlidRight);
    reveal->setFrontViewPosition(FrontPositionClosed);
    Finger(window, clock).drag({100, 120}, {300, 120}, 0.3);
    EXPECT_EQ(reveal->frontViewPosition(), FrontPositionSlidRight);
}

TEST_F(CloudScreenTest, MailsTheListAsItStandsOnDisk) {
    const ComposedMail without = sentMail();
    ASSERT_EQ(without.attachments.size(), 1);
    EXPECT_TRUE(without.attachments[0].data.isNull());
    EXPECT_EQ(without.subject, "My Cydia Packages Backup");
    EXPECT_EQ(without.body, "");
    EXPECT_EQ(without.recipients, QStringList("me@example.org")) << "none is preset";
    mailer.answer();
    clock.advance(sheetDuration + 0.01);
    const std::string list = "lantern\tinstall\r\n\xFF not text\n";
    folder.put(std::string(paths::savedPackages), list);
    const ComposedAttachment attachment = sentMail().attachments[0];
    EXPECT_EQ(attachment.data.toStdString(), list);
    EXPECT_EQ(attachment.mimeType, "text/plain");
    EXPECT_EQ(attachment.fileName, "installed-packages.txt");
}

TEST_F(CloudScreenTest, EachResultIsLoggedAndShowsNothing) {
    const std::pair<int, const char*> rows[] = {{0, "Mail cancelled\n"},
                                                {1, "Mail saved\n"},
                                                {2, "Mail sent\n"},
                                                {3, "Mail sent failure: No route.\n"},
                                                {4, ""}};
    for (const auto& [result, line] : rows) {
        pressSend();
        log.lines.clear();
        MailComposeViewController any(mailer);
        cloud->mailComposeControllerDidFinishWithResult(any, static_cast<MailComposeResult>(result),
                                                        "No route.");
        EXPECT_EQ(log.lines, line);
        EXPECT_EQ(window.modalPresentation().presented(), nullptr);
        EXPECT_EQ(window.alerts().numberShown(), 0);
        clock.advance(sheetDuration + 0.01);
    }
}

TEST(ComposerMailer, TellsWhyNothingWasSentOrKept) {
    const TemporaryFolder folder;
    folder.put("home/any", "");
    InPlaceQueues queues;
    ComposerMailer device(queues, "/nowhere/sendmail", {.home = folder.path() + "/home"});
    std::vector<QString> answers;
    const auto write = [&answers](const auto& fault) { answers.push_back(fault.value_or("done")); };
    const ComposedMail mail = {.recipients = {"me@example.org"}};
    device.send(mail, write);
    device.keepDraft(mail, write);
    device.keepDraft({.subject = "a\nb"}, write);
    EXPECT_EQ(answers, (std::vector<QString>{"There is no mailer at /nowhere/sendmail.", "done",
                                             "The subject of a mail must not contain a line "
                                             "break."}));
    EXPECT_EQ(SystemFileManager(folder.path()).list("/home/Library/Mail/Drafts/cur")->size(), 1U);
    EXPECT_TRUE(device.isRecipient("me@example.org") && !device.isRecipient("me"));
}

}  // namespace
}  // namespace tarnwick::testing
