#include <gtest/gtest.h>

#include <QAccessible>
#include <QTest>

#include "platform/windows/Settling.h"
#include "support/Finger.h"
#include "support/Offered.h"
#include "support/ProgramWindow.h"

namespace tarnwick::testing {
namespace {

class MenuContainerTest : public ProgramWindow {
protected:
    MenuContainerTest() { clock.advance(1.0); }

    QStringList allOffered() { return offered(QAccessible::queryAccessibleInterface(&window)); }
    QQuickItem* row(const char* name) {
        for (QQuickItem* each : reveal->rearViewController()->view()->findChildren<QQuickItem*>())
            if (each->property("reuseIdentifier").toString() == name)
                return each;
        return nullptr;
    }
    static QPoint middleOf(const QQuickItem* item) {
        return item->mapToScene({item->width() / 2, item->height() / 2}).toPoint();
    }
    void openMenu() {
        reveal->revealToggle();
        clock.advance(0.5);
        static_cast<void>(window.grabWindow());
    }
    RevealPosition position() const { return reveal->frontViewPosition(); }

    Finger finger{window, clock};
};

TEST_F(MenuContainerTest, BesideTheOpenMenuNothingWorksButWhatClosesIt) {
    QQuickItem* button = element("accountsButton");
    const std::pair<const char*, std::function<void()>> ways[] = {
        {"a tap",
         [&] {
             finger.tap({350, middleOf(button).y()});
         }},
        {"Escape", [&] { QTest::keyClick(&window, Qt::Key_Escape); }},
        {"assistive technology",
         [&] { pressFromOutside(reveal->view()->findChild<QQuickItem*>("closeMenu")); }},
    };
    diary.entries.clear();
    button->forceActiveFocus(Qt::TabFocusReason);
    for (const auto& [name, close] : ways) {
        openMenu();
        EXPECT_FALSE(allOffered().contains("Accounts")) << name;
        EXPECT_EQ(window.activeFocusItem(), row("backup")) << name;
        pressFromOutside(button);
        QCoreApplication::processEvents();
        close();
        QCoreApplication::processEvents();
        clock.advance(1.0);
        EXPECT_EQ(position(), FrontPositionClosed) << name;
        EXPECT_EQ(window.activeFocusItem(), button) << name;
        EXPECT_TRUE(allOffered().contains("Accounts")) << name;
        EXPECT_FALSE(allOffered().contains("Close Menu")) << name;
    }
    EXPECT_EQ(diary.entries, Entries{});
}

TEST_F(MenuContainerTest,
       TheSecondPressOfADoubleClickReachesNeitherAnotherRowNorTheScreenThatComes) {
    openMenu();
    finger.tap(middleOf(row("restore")));
    clock.advance(0.1);
    diary.entries.clear();
    finger.tap(middleOf(row("help")));
    const auto untilItIsThere = static_cast<qint64>(1000 * settlingDuration);
    for (const qint64 chosen = clock.now(); clock.now() < chosen + untilItIsThere;) {
        clock.advance(0.05);
        finger.tap({190, 330});
    }
    EXPECT_EQ(screen().title(), "Restore");
    EXPECT_EQ(diary.entries, Entries{});
    clock.advance(1.0);
    EXPECT_EQ(position(), FrontPositionClosed);
    EXPECT_TRUE(element("accountsButton")->isEnabled());
}

TEST_F(MenuContainerTest, ADragThatComesBackLeavesTheScreenAsItWas) {
    finger.drag({20, 300}, {100, 300}, 0.5);
    clock.advance(1.0);
    EXPECT_EQ(position(), FrontPositionClosed);
    EXPECT_TRUE(element("accountsButton")->isEnabled());
    finger.drag({20, 300}, {300, 300});
    clock.advance(1.0);
    EXPECT_EQ(position(), FrontPositionSlidRight);
    EXPECT_FALSE(element("accountsButton")->isEnabled());
}

}  // namespace
}  // namespace tarnwick::testing
