#include <gtest/gtest.h>

#include <QAccessible>
#include <QCoreApplication>
#include <QGuiApplication>
#include <QTest>
#include <functional>

#include "platform/mail/MailComposeViewController.h"
#include "platform/views/QmlEngine.h"
#include "platform/windows/AlertView.h"
#include "platform/windows/ModalPresentation.h"
#include "platform/windows/Window.h"
#include "support/Offered.h"
#include "support/RecordingMailer.h"
#include "support/SteppedClock.h"

namespace tarnwick::testing {
namespace {

// A screen with one button; it presents composers and dismisses them.
class Screen : public ViewController, public MailComposeViewControllerDelegate {
public:
    void mailComposeControllerDidFinishWithResult(MailComposeViewController&,
                                                  MailComposeResult result,
                                                  const QString& error) override {
        diary += std::to_string(result) + error.toStdString() + ";";
        dismissViewControllerAnimated(Animated::Yes, [this] { diary += "gone;"; });
    }

    std::string diary;
    QQuickItem* button = nullptr;

protected:
    void viewDidLoad() override {
        button = createQmlItem("PushButton", view(), {{"text", "Compose"}});
    }
};

class MailComposerTest : public ::testing::Test {
protected:
    MailComposerTest() {
        window.resize(320, 480);
        window.setRootViewController(screen);
        window.show();
        window.requestActivate();
        QCoreApplication::processEvents();
        screen->button->forceActiveFocus();
    }
    ~MailComposerTest() override {
        composer.reset();
        window.setRootViewController(nullptr);
        finishDeletions();
    }

    void open(Animated animated = Animated::No) {
        screen->diary.clear();
        mailer.kept.clear();
        window.setRootViewController(screen);
        composer = makeViewController<MailComposeViewController>(mailer);
        composer->setMailComposeDelegate(screen);
        composer->setSubject("List");
        composer->setMessageBody("<b>Hello</b>", IsHtml::Yes);
        composer->addAttachmentData("data", "text/plain", "list.txt");
        screen->presentModalViewController(composer, animated);
        composer->view()->setSize(window.size());
        layOut();
    }

    QQuickItem* item(const char* name) {
        return composer->view()->findChild<QQuickItem*>(QString::fromLatin1(name));
    }
    QQuickItem* button(const char* action) {
        for (auto* found : composer->view()->findChildren<QQuickItem*>())
            if (found->property("actionName").toString() == action)
                return found;
        return nullptr;
    }
    static QRectF frameOf(const QQuickItem* item) {
        return item->mapRectToScene({0, 0, item->width(), item->height()});
    }
    void layOut() { static_cast<void>(window.grabWindow()); }
    void click(QQuickItem* item) {
        QTest::mouseClick(&window, Qt::LeftButton, {}, frameOf(item).center().toPoint());
    }
    void key(Qt::Key pressed) { QTest::keyClick(&window, pressed); }
    void type(const char* text) {
        for (; *text != '\0'; ++text)
            QTest::keyClick(&window, *text);
    }
    bool isUp() { return composer->view()->parentItem() != nullptr; }
    // Of the alert that is up.
    QQuickItem* alertButton(int place) {
        clock.advance(settlingDuration + 0.05);
        layOut();
        return window.alerts().top()->buttons().at(static_cast<std::size_t>(place));
    }
    void answerAlert(int place) {
        click(alertButton(place));
        clock.advance(settlingDuration + 0.05);
    }
    // As a quick action does. Composer and screen are the mailer's until it has answered.
    void cutShort() {
        window.setRootViewController(makeViewController<ViewController>());
        clock.advance(alertLeaveDuration + 0.01);
    }

    SteppedClock clock;
    RecordingMailer mailer;
    std::shared_ptr<Screen> screen = makeViewController<Screen>();
    Window window;
    std::shared_ptr<MailComposeViewController> composer;
};

TEST_F(MailComposerTest, SendsWhatWasWrittenAndTellsOnce) {
    open();
    type("one@example.org, two");
    EXPECT_FALSE(button("send")->isEnabled()) << "one is no address";
    type("@example.org");
    key(Qt::Key_Return);
    type(" 1");
    key(Qt::Key_Tab);
    QTest::keyClick(&window, Qt::Key_End, Qt::ControlModifier);
    type("!");
    key(Qt::Key_Tab);
    EXPECT_EQ(window.activeFocusItem(), button("cancel"));
    key(Qt::Key_Tab);
    EXPECT_EQ(window.activeFocusItem(), button("send"));
    key(Qt::Key_Tab);
    EXPECT_EQ(window.activeFocusItem(), item("recipientsField")) << "the screen below has no part";
    click(button("send"));
    ASSERT_EQ(mailer.sent.size(), 1U);
    const ComposedMail& mail = mailer.sent[0];
    EXPECT_EQ(mail.recipients, QStringList({"one@example.org", "two@example.org"}));
    EXPECT_EQ(mail.subject, "List 1");
    EXPECT_EQ(mail.body, "Hello!");
    EXPECT_EQ(mail.attachments[0].data, "data");
    click(button("send"));
    click(button("cancel"));
    key(Qt::Key_Escape);
    EXPECT_EQ(screen->diary, "") << "it is under way";
    mailer.answer();
    EXPECT_EQ(screen->diary, "2;");
    clock.advance(sheetDuration + 0.01);
    EXPECT_EQ(screen->diary, "2;gone;");
    EXPECT_EQ(mailer.sent.size(), 1U);
    EXPECT_EQ(window.activeFocusItem(), screen->button);
}

TEST_F(MailComposerTest, AssistiveTechnologyFindsEveryPartOfItAndNothingBelow) {
    open();
    EXPECT_EQ(offered(QAccessible::queryAccessibleInterface(&window)),
              QStringList({"New Message", "To", "Subject", "Attached: list.txt, 4 bytes", "Message",
                           "Cancel", "New Message", "Send"}));
}

TEST_F(MailComposerTest, EveryWayOutGivesItsResult) {
    constexpr int deletes = 0;
    constexpr int keeps = 1;
    constexpr int stays = 2;
    struct Row {
        const char* name;
        std::function<void()> act;
        const char* diary;
    };
    const Row rows[] = {
        {"untouched", [this] { key(Qt::Key_Escape); }, "0;gone;"},
        {"deleted", [&] { type("a"), click(button("cancel")), answerAlert(deletes); }, "0;gone;"},
        {"kept", [&] { type("a"), click(button("cancel")), answerAlert(keeps), mailer.answer(); },
         "1;gone;"},
        {"cut short untouched", [this] { cutShort(); }, "0;"},
        {"cut short at the question",
         [&] { type("a"), key(Qt::Key_Escape), cutShort(), mailer.answer(); }, "1;"},
        {"cut short after it was deleted",
         [&] { type("a"), key(Qt::Key_Escape), click(alertButton(deletes)), cutShort(); }, "0;"},
        {"cut short while it is kept",
         [&] {
             type("a"), key(Qt::Key_Escape), answerAlert(keeps), cutShort(), mailer.answer();
             EXPECT_EQ(mailer.kept.size(), 1U);
         },
         "1;"},
        {"cut short while it is sent",
         [&] {
             type("a@b"), click(button("send")), cutShort(), mailer.answer("No route.");
             EXPECT_TRUE(mailer.kept.empty());
         },
         "3No route.;"},
        {"sent in vain", [&] { type("a@b"), click(button("send")), mailer.answer("No route."); },
         "3No route.;gone;"},
        {"stayed",
         [&] {
             type("a");
             key(Qt::Key_Escape);
             answerAlert(stays);
             EXPECT_TRUE(isUp());
             EXPECT_EQ(window.activeFocusItem(), item("recipientsField"));
             item("recipientsField")->setProperty("text", "");
             click(button("cancel"));
         },
         "0;gone;"},
    };
    for (const Row& row : rows) {
        open();
        row.act();
        clock.advance(sheetDuration + 0.01);
        EXPECT_EQ(screen->diary, row.diary) << row.name;
        EXPECT_FALSE(isUp()) << row.name;
        EXPECT_EQ(window.alerts().numberShown(), 0) << row.name;
    }
}

TEST_F(MailComposerTest, TheSheetSlidesOverTheScreenAndCoversIt) {
    open(Animated::Yes);
    EXPECT_EQ(composer->view()->y(), 480);
    screen->presentModalViewController(makeViewController<ViewController>(), Animated::No);
    EXPECT_EQ(window.modalPresentation().presented(), composer) << "one at a time";
    clock.advance(sheetDuration / 2);
    EXPECT_GT(composer->view()->y(), 0);
    EXPECT_LT(composer->view()->y(), 240);
    clock.advance(sheetDuration);
    EXPECT_EQ(composer->view()->y(), 0);
    EXPECT_FALSE(screen->button->isEnabled());
    window.alerts().show({.title = "Above"});
    EXPECT_FALSE(button("cancel")->isEnabled());
    key(Qt::Key_Escape);
    clock.advance(alertLeaveDuration);
    EXPECT_EQ(screen->diary, "");

    window.setRootViewController(nullptr);
    screen.reset();
    finishDeletions();
    EXPECT_FALSE(isUp()) << "nobody could dismiss it";
    EXPECT_EQ(window.modalPresentation().presented(), nullptr);
}

TEST_F(MailComposerTest, NothingIsCutOffOnSmallScreensWithLargeText) {
    const QFont usual = QGuiApplication::font();
    QFont font = usual;
    font.setPixelSize(23);
    QGuiApplication::setFont(font);
    for (const QSize size : {QSize(320, 480), QSize(480, 320)}) {
        window.resize(size);
        open();
        const QRectF cancel = frameOf(button("cancel"));
        const QRectF send = frameOf(button("send"));
        EXPECT_TRUE(QRectF(QPointF(), size).contains(cancel.united(send)));
        EXPECT_LT(cancel.right(), send.left());
        QQuickItem* body = item("bodyField");
        for (QQuickItem* part : {button("cancel"), button("send"), item("recipientsField")})
            EXPECT_GE(part->height(), part->implicitHeight());
        body->forceActiveFocus();
        for (int line = 0; line < 40; ++line)
            key(Qt::Key_Return);
        layOut();
        const QRectF cursor = body->property("cursorRectangle").toRectF();
        const double bottom = body->mapRectToItem(item("form"), cursor).bottom();
        EXPECT_LE(bottom, item("form")->height()) << "one sees what one writes";
        screen->dismissViewControllerAnimated(Animated::No);
    }
    QGuiApplication::setFont(usual);
}

}  // namespace
}  // namespace tarnwick::testing
