#include <gtest/gtest.h>

#include <QTest>

#include "cli/InPlaceQueues.h"
#include "core/SafeguardPaths.h"
#include "mail/CloudViewController.h"
#include "mail/ComposerMailer.h"
#include "platform/windows/ModalPresentation.h"
#include "support/ProgramWindow.h"

namespace tarnwick::testing {
namespace {

class CloudScreenTest : public ProgramWindow {
protected:
    CloudScreenTest() { choose("cloud"); }

    void pressSend() {
        static_cast<void>(window.grabWindow());
        QQuickItem* button = element("sendBackupButton");
        const QPointF middle = button->mapToScene({button->width() / 2, button->height() / 2});
        QTest::mouseClick(&window, Qt::LeftButton, {}, middle.toPoint());
        clock.advance(sheetDuration + 0.01);
    }
    QQuickItem* fillIn() {
        pressSend();
        QQuickItem* composer = window.modalPresentation().presented()->view();
        composer->findChild<QQuickItem*>("recipientsField")->setProperty("text", "me@example.org");
        return composer;
    }
    // What is sent when the person fills in an address and nothing else.
    ComposedMail sentMail() {
        for (auto* button : fillIn()->findChildren<QQuickItem*>())
            if (button->property("actionName") == "send")
                QMetaObject::invokeMethod(button, "clicked");
        return mailer.sent.back();
    }
};

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
        static_cast<CloudViewController&>(screen()).mailComposeControllerDidFinishWithResult(
            any, static_cast<MailComposeResult>(result), "No route.");
        EXPECT_EQ(log.lines, line);
        EXPECT_EQ(window.modalPresentation().presented(), nullptr);
        EXPECT_EQ(window.alerts().numberShown(), 0);
        clock.advance(sheetDuration + 0.01);
    }
}

TEST_F(CloudScreenTest, WhatIsWrittenIsKeptWhateverEndsIt) {
    AppDelegate delegate(window, services);
    diary.entries.clear();
    fillIn();
    delegate.applicationDidEnterBackground();
    EXPECT_TRUE(diary.entries.empty()) << "not before the draft is kept";
    mailer.answer();
    EXPECT_EQ(diary.entries, Entries{"run: /usr/bin/killall RootTarnwick2"});
    fillIn();
    delegate.launchViewControllerOptions();
    reveal = std::static_pointer_cast<RevealViewController>(
        storyboard->instantiateInitialViewController());
    finishDeletions();
    mailer.answer();
    EXPECT_EQ(mailer.kept.size(), 2U);
    EXPECT_EQ(log.lines, "Mail saved\nMail saved\n");
}

TEST(ComposerMailer, KeepsWhatItCannotSendAndSaysWhy) {
    const TemporaryFolder folder;
    folder.put("home/any", "");
    InPlaceQueues queues;
    ComposerMailer device(queues, "/nowhere/sendmail", {.home = folder.path() + "/home"});
    std::vector<QString> answers;
    const auto write = [&answers](const auto& fault) { answers.push_back(fault.value_or("done")); };
    const ComposedMail mail = {.recipients = {"me@example.org"}};
    device.send(mail, write);
    device.keepDraft(mail, write);
    EXPECT_EQ(answers, (std::vector<QString>{
                           "There is no mailer at /nowhere/sendmail. The mail is kept as a draft.",
                           "done"}));
    EXPECT_EQ(SystemFileManager(folder.path()).list("/home/Library/Mail/Drafts/cur")->size(), 2U);
}

}  // namespace
}  // namespace tarnwick::testing
