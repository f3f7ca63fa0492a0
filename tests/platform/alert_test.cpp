#include <gtest/gtest.h>

#include <QAccessible>
#include <QGuiApplication>
#include <QQuickWindow>
#include <QSignalSpy>
#include <QTest>
#include <set>
#include <thread>

#include "platform/views/QmlEngine.h"
#include "platform/views/Stage.h"
#include "platform/windows/AlertPresenter.h"
#include "platform/windows/AlertView.h"
#include "support/Offered.h"
#include "support/SteppedClock.h"

namespace tarnwick::testing {
namespace {

// Writes down what it is told; may do something more when it is told of a click.
class Listener : public AlertDelegate {
public:
    void alertClickedButtonAtIndex(const Alert& alert, int index) override {
        diary += "clicked " + std::to_string(alert.tag) + "/" + std::to_string(index) + ";";
        if (onClick)
            onClick();
    }
    void alertDidDismissWithButtonIndex(const Alert& alert, int index) override {
        diary += "gone " + std::to_string(alert.tag) + "/" + std::to_string(index) + ";";
    }
    std::string diary;
    std::function<void()> onClick;
};

constexpr double settled = settlingDuration + 0.05;  // pauses begin and end with a frame

// Something on the screen that follows a finger or a pointer.
class Surface : public QQuickItem {
public:
    explicit Surface(QQuickItem* parent) : QQuickItem(parent) {
        setAcceptedMouseButtons(Qt::LeftButton);
        setPosition({0, 300});
        setSize({375, 300});
    }
    int presses = 0;
    int cancelled = 0;
    int wheels = 0;

protected:
    void mousePressEvent(QMouseEvent*) override { ++presses; }
    void mouseUngrabEvent() override { ++cancelled; }
    void wheelEvent(QWheelEvent*) override { ++wheels; }
};

QRectF frameOf(const QQuickItem* item) {
    return item->mapRectToScene({0, 0, item->width(), item->height()});
}

// A phone whose screen has two buttons, of which the second has the keyboard.
class AlertTest : public ::testing::Test {
protected:
    AlertTest() {
        resize({375, 667});
        for (const char* caption : {"Save", "Load"})
            buttons.push_back(createQmlItem("PushButton", &stage, {{"text", caption}}));
        buttons[1]->setY(100);
        window.show();
        window.requestActivate();
        QCoreApplication::processEvents();
        buttons[1]->forceActiveFocus();
        clicks = std::make_unique<QSignalSpy>(buttons[0], SIGNAL(clicked()));
    }
    ~AlertTest() override { presenter.reset(); }

    void resize(const QSize& size) {
        window.resize(size);
        window.contentItem()->setSize(size);
        stage.setSize(size);
    }

    void showAndWait(const Alert& alert) {
        presenter->show(alert, listener);
        clock.advance(settled);
        layOut();
    }

    void layOut() { static_cast<void>(window.grabWindow()); }
    void key(Qt::Key pressed) { QTest::keyClick(&window, pressed); }
    QPoint middleOf(QQuickItem* item) { return frameOf(item).center().toPoint(); }
    void click(QQuickItem* item) { QTest::mouseClick(&window, Qt::LeftButton, {}, middleOf(item)); }
    QStringList allOffered() { return offered(QAccessible::queryAccessibleInterface(&window)); }

    SteppedClock clock;
    QQuickWindow window;
    Stage stage{window.contentItem()};
    std::vector<QQuickItem*> buttons;
    std::unique_ptr<QSignalSpy> clicks;  // of the first button
    std::unique_ptr<AlertPresenter> presenter =
        std::make_unique<AlertPresenter>(stage, *window.contentItem());
    std::shared_ptr<Listener> listener = std::make_shared<Listener>();
};

const Alert question = {
    .title = "Restart?", .message = "Now.", .otherButtonTitles = {"One", "Two"}, .tag = 7};

TEST_F(AlertTest, EveryWayOfPressingTellsTheIndexAndThenTheEnd) {
    const std::unique_ptr<QPointingDevice> finger(QTest::createTouchDevice());
    const auto touch = [this, &finger](QQuickItem* item) {
        QTest::touchEvent(&window, finger.get()).press(1, middleOf(item));
        QTest::touchEvent(&window, finger.get()).release(1, middleOf(item));
    };
    const auto press = [](QQuickItem* item) {
        pressFromOutside(item);
        QCoreApplication::processEvents();
    };
    struct Row {
        const char* name;
        std::function<void(const std::vector<QQuickItem*>& all)> act;
        int index;
    };
    const Row rows[] = {
        {"mouse", [this](const auto& all) { click(all[0]); }, 1},
        {"touch", [&touch](const auto& all) { touch(all[1]); }, 2},
        {"assistive technology", [&press](const auto& all) { press(all[1]); }, 2},
        {"Return", [this](const auto&) { key(Qt::Key_Return); }, 0},
        {"Tab, Enter", [this](const auto&) { key(Qt::Key_Tab), key(Qt::Key_Enter); }, 1},
        {"Up, space bar", [this](const auto&) { key(Qt::Key_Up), key(Qt::Key_Space); }, 2},
        {"Escape", [this](const auto&) { key(Qt::Key_Tab), key(Qt::Key_Escape); }, 0},
    };
    for (const Row& row : rows) {
        listener->diary.clear();
        showAndWait(question);
        EXPECT_EQ(presenter->top()->panel()->opacity(), 1) << row.name;
        row.act(presenter->top()->buttons());
        key(Qt::Key_Escape);  // it is leaving: too late
        const auto told = "clicked 7/" + std::to_string(row.index) + ";";
        clock.advance(alertLeaveDuration / 2);
        EXPECT_EQ(listener->diary, told) << row.name;
        clock.advance(alertLeaveDuration / 2);
        EXPECT_EQ(listener->diary, told + "gone 7/" + std::to_string(row.index) + ";") << row.name;
        EXPECT_TRUE(stage.isCovered()) << row.name << ": a double click goes no further";
        clock.advance(settled);
        EXPECT_FALSE(stage.isCovered()) << row.name;
    }
    showAndWait({.message = "Wait.", .cancelButtonTitle = ""});
    key(Qt::Key_Escape), key(Qt::Key_Return), key(Qt::Key_Tab);
    EXPECT_EQ(presenter->numberShown(), 1);
}

TEST_F(AlertTest, NoButtonIsLostOnTheSmallestScreensAndWithLargeText) {
    const QFont usual = QGuiApplication::font();
    for (const auto& [screen, fontSize] :
         {std::pair(QSize(320, 480), 12), std::pair(QSize(480, 320), 12),
          std::pair(QSize(320, 480), 23)}) {
        QFont font = usual;
        font.setPixelSize(fontSize);
        QGuiApplication::setFont(font);
        resize(screen);
        showAndWait({.title = "Choose",
                     .message = std::string(200, 'x') + std::string(100, '\n'),
                     .otherButtonTitles = std::vector<std::string>(11, "Another choice")});
        const QRectF panel = frameOf(presenter->top()->panel());
        EXPECT_TRUE(QRectF({0, 0}, screen).contains(panel));
        std::set<QQuickItem*> reached;
        for (int place = 0; place < 12; ++place) {
            key(Qt::Key_Tab);
            const QQuickItem* focused = window.activeFocusItem();
            EXPECT_TRUE(panel.contains(frameOf(focused))) << place;
            EXPECT_LE(focused->implicitWidth(), panel.width());
            EXPECT_LE(focused->implicitHeight(), focused->height());
            reached.insert(window.activeFocusItem());
        }
        EXPECT_EQ(reached.size(), 12U);
        key(Qt::Key_PageDown);
        auto* text = presenter->top()->panel()->property("textArea").value<QQuickItem*>();
        EXPECT_GT(text->property("contentY").toDouble(), 20) << "a long message scrolls";
        key(Qt::Key_Escape);
        clock.advance(settled);
    }
    QGuiApplication::setFont(usual);
}

TEST_F(AlertTest, DismissedByCodeItTellsOnlyThat) {
    AlertTicket waiting;
    std::thread([&] {
        waiting = presenter->show({.tag = 1}, listener);
        presenter->dismiss(waiting, 3, Animated::Yes);
        presenter->dismiss(waiting, 4, Animated::Yes);
    }).join();
    const AlertTicket older = presenter->show({.tag = 2}, listener);
    EXPECT_EQ(listener->diary, "gone 1/3;");
    EXPECT_EQ(presenter->numberShown(), 1);
    const AlertTicket newer = presenter->show({.tag = 3}, listener);
    presenter->dismiss(older, 5, Animated::Yes);
    EXPECT_EQ(presenter->top()->alert().tag, 3);
    presenter->dismiss(older, 6, Animated::No);
    presenter->dismiss({}, 0, Animated::No);
    std::thread([&] { presenter->dismiss(newer, 8, Animated::No); }).join();
    EXPECT_EQ(listener->diary, "gone 1/3;gone 2/5;");
    QCoreApplication::processEvents();
    EXPECT_EQ(listener->diary, "gone 1/3;gone 2/5;gone 3/8;");
    EXPECT_EQ(presenter->top(), nullptr);
}

TEST_F(AlertTest, WhatLiesBelowGetsNothingUntilItIsBack) {
    Surface surface(&stage);
    const QPoint place(20, 320);
    QTest::mousePress(&window, Qt::LeftButton, {}, place);
    const AlertTicket older = presenter->show({.title = "Older"});
    EXPECT_EQ(surface.cancelled, 1);
    QTest::mouseRelease(&window, Qt::LeftButton, {}, place);
    QTest::mouseClick(&window, Qt::LeftButton, {}, place);
    QWheelEvent wheel(place, place, {}, {0, 120}, Qt::NoButton, {}, Qt::NoScrollPhase, false);
    QCoreApplication::sendEvent(&window, &wheel);
    EXPECT_EQ(surface.presses, 1);
    EXPECT_EQ(surface.wheels, 0);
    showAndWait(question);
    click(buttons[0]);
    buttons[0]->forceActiveFocus();
    QCoreApplication::processEvents();
    key(Qt::Key_Space);
    EXPECT_EQ(clicks->count(), 0);
    clock.advance(settled);
    EXPECT_EQ(window.activeFocusItem(), presenter->top()->buttons()[0]);
    presenter->dismiss(older, 0, Animated::No);
    EXPECT_EQ(window.activeFocusItem(), buttons[0]);
    key(Qt::Key_Return);
    click(buttons[0]);
    EXPECT_EQ(clicks->count(), 2);
}

TEST_F(AlertTest, AssistiveTechnologyFindsTheTopmostAlertOnly) {
    const QStringList all = {"Save", "Load"};
    EXPECT_EQ(allOffered(), all);
    const AlertTicket older = presenter->show({.title = "Older"});
    EXPECT_EQ(allOffered(), QStringList("Older")) << "its button cannot be pressed yet";
    EXPECT_EQ(QAccessible::queryAccessibleInterface(&stage)->childCount(), 0);
    const AlertTicket newer = presenter->show(question);
    clock.advance(settled);
    EXPECT_EQ(allOffered(), QStringList({"Restart?", "One", "Two", "Close"}));
    presenter->dismiss(newer, 0, Animated::No);
    clock.advance(settled);
    EXPECT_EQ(allOffered(), QStringList({"Older", "Close"}));
    presenter->dismiss(older, 0, Animated::No);
    EXPECT_EQ(allOffered(), all);
}

TEST_F(AlertTest, AssistiveTechnologyCannotPressWhatIsCoveredByThen) {
    pressFromOutside(buttons[0]);
    showAndWait(question);
    QQuickItem* one = presenter->top()->buttons()[0];
    pressFromOutside(one);
    const AlertTicket newer = presenter->show({.title = "Newer"});
    QCoreApplication::processEvents();
    pressFromOutside(buttons[0]);
    pressFromOutside(one);
    QCoreApplication::processEvents();
    EXPECT_EQ(clicks->count(), 0);
    EXPECT_EQ(listener->diary, "");
    presenter->dismiss(newer, 0, Animated::No);
    clock.advance(settled);
    pressFromOutside(one);
    QCoreApplication::processEvents();
    EXPECT_EQ(listener->diary, "clicked 7/1;");
}

TEST_F(AlertTest, ASecondPressDoesNotAnswerWhatTheFirstOneBroughtUp) {
    const auto pressEveryWay = [this] {
        layOut();
        for (QQuickItem* button : presenter->top()->buttons()) {
            click(button);
            pressFromOutside(button);
        }
        key(Qt::Key_Return), key(Qt::Key_Space), key(Qt::Key_Escape);
        QCoreApplication::processEvents();
    };
    presenter->show(question, listener);
    pressEveryWay();
    const AlertTicket newer = presenter->show(question, listener);
    clock.advance(settlingDuration - 0.05);
    QTest::mousePress(&window, Qt::LeftButton, {}, middleOf(presenter->top()->buttons()[0]));
    pressEveryWay();
    clock.advance(0.06);
    QTest::mouseRelease(&window, Qt::LeftButton, {}, middleOf(presenter->top()->buttons()[0]));
    presenter->dismiss(newer, 9, Animated::No);
    pressEveryWay();
    EXPECT_EQ(listener->diary, "gone 7/9;");
    clock.advance(settled);
    key(Qt::Key_Return);
    EXPECT_EQ(listener->diary, "gone 7/9;clicked 7/0;");
}

TEST_F(AlertTest, WhoeverGoesFirstTheOthersLiveOn) {
    presenter->show(question, std::make_shared<Listener>());
    clock.advance(settled);
    key(Qt::Key_Escape);
    clock.advance(settled);

    listener->onClick = [this] { presenter.reset(); };
    const AlertTicket leaving = presenter->show({.tag = 1});
    presenter->dismiss(leaving, 0, Animated::Yes);
    std::thread([this] { presenter->show({.tag = 2}); }).join();
    showAndWait(question);
    click(presenter->top()->buttons()[0]);
    EXPECT_FALSE(stage.isCovered());
    clock.advance(1.0);
    EXPECT_EQ(listener->diary, "clicked 7/1;");
    EXPECT_EQ(window.activeFocusItem(), buttons[1]);
}

}  // namespace
}  // namespace tarnwick::testing
