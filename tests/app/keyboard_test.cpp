#include <gtest/gtest.h>

#include <QTest>
#include <algorithm>

#include "support/ProgramWindow.h"

namespace tarnwick::testing {
namespace {

// A person who has nothing but keys.
class KeyboardTest : public ProgramWindow {
protected:
    KeyboardTest() {
        window.requestActivate();
        QCoreApplication::processEvents();
    }

    void key(Qt::Key pressed, Qt::KeyboardModifiers modifiers = {}) {
        QTest::keyClick(&window, pressed, modifiers);
        clock.advance(1.0);
        static_cast<void>(window.grabWindow());  // lays out
    }
    QString focused() {
        const QQuickItem* item = window.activeFocusItem();
        return item == nullptr ? QString() : item->property("text").toString();
    }
    void go(Qt::Key step, const QString& caption) {
        for (int steps = 0; focused() != caption && steps < 20; ++steps)
            key(step);
        ASSERT_EQ(focused(), caption);
    }
    void goToScreen(const QString& title) {
        key(Qt::Key_F10);
        go(Qt::Key_Down, title);
        expectRingIsSeen(title);
        key(Qt::Key_Return);
        EXPECT_EQ(screen().title(), title);
    }
    void expectRingIsSeen(const QString& where) {
        QQuickItem* item = window.activeFocusItem();
        EXPECT_TRUE(item->property("visualFocus").toBool()) << where.toStdString();
        const QRectF frame = item->mapRectToScene(item->boundingRect());
        const double right = reveal->frontViewPosition() == FrontPositionClosed
                                 ? window.width()
                                 : reveal->rearViewRevealWidth;
        EXPECT_TRUE(QRectF(0, 0, right, window.height()).contains(frame))
            << where.toStdString() << ": " << focused().toStdString();
    }
    // What Tab reaches on the screen, from its first item until that comes again.
    std::vector<QQuickItem*> walk() {
        std::vector<QQuickItem*> walked;
        for (key(Qt::Key_Tab); std::ranges::find(walked, window.activeFocusItem()) == walked.end();
             key(Qt::Key_Tab)) {
            expectRingIsSeen(screen().title());
            walked.push_back(window.activeFocusItem());
        }
        return walked;
    }
    double scrolledBy() {
        return element("contentView")->parentItem()->parentItem()->property("contentY").toDouble();
    }
};

bool isReadBefore(const QQuickItem* one, const QQuickItem* other) {
    const QPointF first = one->mapToScene({0, 0});
    const QPointF second = other->mapToScene({0, 0});
    return std::pair(first.y(), first.x()) < std::pair(second.y(), second.x());
}

TEST_F(KeyboardTest, ReachesEveryButtonOfEveryScreenInTheOrderOfReading) {
    for (const QSize size : {QSize(375, 2000), QSize(800, 1200)}) {
        window.resize(size);
        QCoreApplication::processEvents();
        for (const QString title : {"Restore", "Cloud", "Options", "Help", "Backup"}) {
            goToScreen(title);
            std::vector<QQuickItem*> walked = walk();
            std::ranges::rotate(walked, std::ranges::min_element(walked, isReadBefore));
            EXPECT_TRUE(std::ranges::is_sorted(walked, isReadBefore)) << title.toStdString();
            EXPECT_EQ(walked.front()->property("text"), "Menu");
            walked.erase(walked.begin());
            std::ranges::sort(walked);
            std::vector<QQuickItem*> buttons;
            for (auto* item : screen().view()->findChildren<QQuickItem*>())
                if (item->inherits("QQuickAbstractButton"))
                    buttons.push_back(item);
            std::ranges::sort(buttons);
            EXPECT_EQ(walked, buttons) << title.toStdString();
        }
    }
}

TEST_F(KeyboardTest, EveryPageScrollsByTheKeysThatScrollElsewhere) {
    goToScreen("Help");
    key(Qt::Key_End);
    const double end = scrolledBy();
    EXPECT_GT(end, 667);
    const double page = 667 - 44 - 40;  // a line stays in sight
    struct Row {
        Qt::Key key;
        Qt::KeyboardModifiers modifiers;
        double place;
    };
    const Row rows[] = {{Qt::Key_Home, {}, 0},     {Qt::Key_Up, {}, 0},
                        {Qt::Key_Down, {}, 40},    {Qt::Key_PageDown, {}, 40 + page},
                        {Qt::Key_Up, {}, page},    {Qt::Key_PageUp, {}, 0},
                        {Qt::Key_Space, {}, page}, {Qt::Key_Space, Qt::ShiftModifier, 0},
                        {Qt::Key_End, {}, end},    {Qt::Key_PageDown, {}, end}};
    for (const Row& row : rows) {
        key(row.key, row.modifiers);
        EXPECT_EQ(scrolledBy(), row.place) << row.key;
    }
}

TEST_F(KeyboardTest, NothingIsTakenAwayByReturnAlone) {
    goToScreen("Options");
    go(Qt::Key_Tab, "Remove Backup Folders");
    diary.entries.clear();
    key(Qt::Key_Return);
    EXPECT_EQ(focused(), "Cancel");
    for (const QQuickItem* button : window.alerts().top()->buttons())
        EXPECT_EQ(button->property("isDestructive").toBool(), button->property("text") == "Yes");
    key(Qt::Key_Return);
    EXPECT_EQ(window.alerts().numberShown(), 0);
    EXPECT_EQ(diary.changes(), Entries{});
    EXPECT_EQ(focused(), "Remove Backup Folders");
}

TEST_F(KeyboardTest, TheMenuGivesTheKeyboardBack) {
    go(Qt::Key_Tab, "Notes");
    key(Qt::Key_F10);
    go(Qt::Key_End, "Help");
    go(Qt::Key_Home, "Backup");
    key(Qt::Key_Up);
    EXPECT_EQ(focused(), "Backup");
    reveal->revealToggle();
    clock.advance(1.0);
    EXPECT_EQ(focused(), "Menu") << "F10 pressed it";
}

}  // namespace
}  // namespace tarnwick::testing
