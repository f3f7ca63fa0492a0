#include <gtest/gtest.h>

#include <functional>

#include "support/RevealScreen.h"

namespace tarnwick::testing {
namespace {

constexpr double moved = 0.35;  // seconds, after which a move is over

TEST(Reveal, TogglesOpenAndClosed) {
    RevealScreen screen;
    EXPECT_EQ(screen.view().rearView(), nullptr);
    screen.reveal->revealToggle();
    EXPECT_EQ(screen.view().rearView()->x(), -40);
    screen.clock.advance(0.1);
    EXPECT_GT(screen.x(), 20);
    EXPECT_LT(screen.x(), 260);
    screen.clock.advance(moved);
    EXPECT_EQ(screen.x(), 260);
    EXPECT_EQ(screen.view().rearView()->x(), 0);
    EXPECT_EQ(screen.reveal->childForStatusBarStyle(), screen.reveal->rearViewController().get());
    screen.reveal->revealToggleAnimated(Animated::No);
    EXPECT_EQ(screen.x(), 0);
    EXPECT_EQ(screen.view().rearView(), nullptr);
    EXPECT_EQ(screen.reveal->rearViewController()->view()->parentItem(), nullptr);
    EXPECT_EQ(screen.diary, (Words{"will move to 4", "animate to 4", "did move to 4",
                                   "will move to 3", "animate to 3", "did move to 3"}));
}

TEST(Reveal, ASlowReleaseGoesToTheNearerEndAndBouncesBackFromTheOverdraw) {
    const std::pair<double, double> rows[] = {{120, 0}, {200, 260}, {300, 0}};
    for (const auto& [released, end] : rows) {
        RevealScreen screen;
        // In the overdraw the finger goes twice as far.
        screen.dragSlowlyTo(released > 260 ? 260 + 2 * (released - 260) : released);
        EXPECT_NEAR(screen.listener.endLocation, released, 1);
        EXPECT_NEAR(screen.listener.endProgress, released / 260, 0.01);
        screen.clock.advance(moved);
        EXPECT_EQ(screen.x(), end) << released;
    }
    RevealScreen flicked;
    flicked.finger.drag({20, 300}, {80, 300}, 0.1);
    flicked.clock.advance(moved);
    EXPECT_EQ(flicked.x(), 260);
}

TEST(Reveal, DoesNotOpenWhereThereIsNothingToReveal) {
    RevealScreen screen;
    screen.finger.drag({300, 300}, {100, 300});
    EXPECT_TRUE(screen.diary.empty());
    screen.reveal->setFrontViewPosition(FrontPositionSlidLeft);
    EXPECT_EQ(screen.position(), FrontPositionClosed);
    EXPECT_EQ(screen.view().rightView(), nullptr);
    screen.finger.press({190, 300});
    screen.finger.move({300, 300});
    screen.finger.move({20, 300});
    EXPECT_EQ(screen.x(), 0) << "on the way to a side without a child";
    screen.finger.lift();
    screen.clock.advance(moved);
    screen.listener.panMayBegin = false;
    screen.finger.drag({20, 300}, {200, 300});
    EXPECT_EQ(screen.x(), 0);
    screen.listener.panMayBegin = true;
    screen.reveal->draggableBorderWidth = 30;
    screen.finger.drag({60, 300}, {200, 300});
    EXPECT_EQ(screen.x(), 0);
}

TEST(Reveal, ADragFromOneSideToTheOtherShowsTheSideThatItUncovers) {
    RevealScreen screen(true);
    screen.finger.press({190, 300});
    screen.finger.move({300, 300});
    EXPECT_NE(screen.view().rearView(), nullptr);
    EXPECT_EQ(screen.view().rightView(), nullptr);
    screen.finger.move({20, 300}, 0.5, 20);
    EXPECT_EQ(screen.view().rearView(), nullptr);
    EXPECT_NEAR(screen.x(), -180, 1);
    screen.finger.rest(0.3);
    screen.finger.lift();
    screen.clock.advance(moved);
    EXPECT_EQ(screen.position(), FrontPositionSlidLeft);
    EXPECT_EQ(screen.reveal->childForStatusBarHidden(), screen.reveal->rightViewController().get());
}

TEST(Reveal, ACancelledDragGoesBackToWhereItBegan) {
    const std::function<void(RevealScreen&)> interruptions[] = {
        [](RevealScreen& screen) {
            screen.finger.pressSecond({300, 400});
        },
        [](RevealScreen& screen) { screen.finger.cancel(); },
        [](RevealScreen& screen) { screen.window.alerts().show({.title = "Backup"}); }};
    for (const auto& interrupt : interruptions) {
        RevealScreen screen;
        screen.finger.press({20, 300});
        screen.finger.move({200, 300});
        screen.reveal->setFrontViewPosition(FrontPositionSlidRight, Animated::Yes);  // waits
        interrupt(screen);
        screen.clock.advance(0.29);
        EXPECT_LT(screen.x(), 20);
        EXPECT_EQ(screen.position(), FrontPositionClosed);
        screen.clock.advance(moved);
        EXPECT_EQ(screen.x(), 260);
    }
}

TEST(Reveal, ACancelledDragOfAnOpenFrontLeavesItOpen) {
    RevealScreen screen;
    screen.reveal->revealToggleAnimated(Animated::No);
    screen.finger.press({340, 300});
    screen.finger.move({100, 300});
    screen.finger.cancel();
    screen.clock.advance(moved);
    EXPECT_EQ(screen.x(), 260);
}

TEST(Reveal, ADragDuringAMoveTakesTheViewOverAndHoldsWhatWaits) {
    RevealScreen screen;
    screen.reveal->revealToggle();
    screen.reveal->revealToggle();
    screen.clock.advance(0.1);
    screen.finger.press({300, 300});
    for (int way = 2; way <= 30; way += 2) {
        const double before = screen.x();
        screen.finger.move({300 - way, 300}, 0.005, 1);
        EXPECT_NEAR(screen.x(), before, 8) << "it does not jump";
    }
    const double caught = screen.x();
    screen.clock.advance(1.0);
    EXPECT_EQ(screen.x(), caught) << "under a finger that rests";
    EXPECT_NE(screen.view().rearView(), nullptr);
    EXPECT_EQ(screen.position(), FrontPositionSlidRight);
    screen.finger.lift();
    screen.clock.advance(0.2);
    EXPECT_GT(screen.x(), caught);
    screen.clock.advance(0.5);
    EXPECT_EQ(screen.x(), 0) << "the second toggle";
}

TEST(Reveal, AFrontThatIsCaughtWhileItClosesKeepsItsMenu) {
    for (int moment = 1; moment <= 15; ++moment) {
        RevealScreen screen;
        screen.reveal->revealToggleAnimated(Animated::No);
        screen.reveal->revealToggle();
        screen.clock.advance(moment / 100.0);
        screen.finger.press({330, 300});
        screen.finger.move({360, 300}, 0.02, 2);
        ASSERT_NE(screen.view().rearView(), nullptr) << moment;
        EXPECT_EQ(screen.reveal->rearViewController()->view()->parentItem(),
                  screen.view().rearView());
        screen.finger.cancel();
        screen.clock.advance(moved);
        EXPECT_EQ(screen.x(), 0);
        EXPECT_EQ(screen.view().rearView(), nullptr) << moment;
    }
}

// Has something of its own move along, which no finger stops.
class Companion : public QObject, public RevealViewControllerDelegate {
public:
    void revealControllerAnimateToPosition(Reveal&, RevealPosition position,
                                           std::vector<Change>& changes) override {
        changes.push_back({&item, Change::Property::Opacity, static_cast<int>(position) / 10.0});
    }
    QQuickItem item;
};

TEST(Reveal, AFrontThatIsCaughtWhileItIsRemovedHasItsChildAgain) {
    RevealScreen screen;
    Companion companion;
    screen.reveal->setDelegate(&companion);
    screen.reveal->setFrontViewPosition(FrontPositionSlidRightRemoved, Animated::Yes);
    screen.clock.advance(0.1);
    screen.finger.press({350, 300});
    screen.finger.move({300, 300});
    screen.finger.lift();
    screen.clock.advance(moved);
    EXPECT_EQ(screen.reveal->frontViewController()->view()->parentItem(),
              screen.view().frontView());
}

TEST(Reveal, AHardFlickShowsNothingBeyondTheEnds) {
    RevealScreen screen(true);
    for (const double expected : {260.0, 0.0}) {
        const bool opens = expected > 0;
        const int way = opens ? 240 : -240;
        screen.finger.drag({340 - (opens ? 240 : 0), 300}, {340 - (opens ? 240 : 0) + way, 300},
                           0.02);
        for (int frame = 0; frame < 35; ++frame) {
            EXPECT_GE(screen.x(), 0);
            EXPECT_LE(screen.x(), 320);
            EXPECT_LE(screen.view().rearView() != nullptr ? screen.view().rearView()->x() : 0, 0);
            screen.clock.advance(0.01);
        }
        EXPECT_EQ(screen.x(), expected);
    }
}

TEST(Reveal, TheFrontCastsAShadowOfAnyOffsetAndRadius) {
    struct Row {
        double radius;
        double offset;
        bool nearby;
        bool far;
    };
    const Row rows[] = {{0, 0, false, false},
                        {0, -20, true, false},
                        {2.5, -20, true, false},
                        {2.5, -60, true, true}};
    RevealScreen screen;
    screen.reveal->setFrontViewShadowColor(Qt::red);
    screen.reveal->revealToggleAnimated(Animated::No);
    for (const Row& row : rows) {
        screen.reveal->setFrontViewShadowRadius(row.radius);
        screen.reveal->setFrontViewShadowOffset({row.offset, 0});
        const QImage picture = screen.window.grabWindow();
        const auto isRed = [&picture](int x) { return picture.pixelColor(x, 300).red() > 250; };
        EXPECT_EQ(isRed(255), row.nearby) << row.radius << ", " << row.offset;
        EXPECT_EQ(isRed(220), row.far) << row.radius << ", " << row.offset;
    }
}

TEST(Reveal, AMenuThatArrivesLaterIsSeenBesideAHierarchicalFront) {
    RevealScreen screen;
    screen.reveal->setRearViewController(nullptr);
    screen.reveal->presentFrontViewHierarchically = true;
    screen.reveal->setFrontViewPosition(FrontPositionClosed);
    const auto menu = screen.child("later menu");
    screen.reveal->setRearViewController(menu);
    ASSERT_NE(screen.view().rearView(), nullptr);
    EXPECT_EQ(menu->view()->parentItem(), screen.view().rearView());
}

// It could never be told.
class NoObject : public RevealViewControllerDelegate {};
static_assert(std::is_convertible_v<Listener*, WeakDelegate<RevealViewControllerDelegate>>);
static_assert(!std::is_convertible_v<NoObject*, WeakDelegate<RevealViewControllerDelegate>>);

TEST(Reveal, AHierarchicalFrontLeavesRoomForTheBarAndKeepsBothSidesBelow) {
    RevealScreen screen(true);
    screen.reveal->presentFrontViewHierarchically = true;
    screen.reveal->setFrontViewPosition(FrontPositionSlidLeft);
    const auto isRightAbove = [&screen] {
        const auto views = screen.view().childItems();
        return views.indexOf(screen.view().rightView()) > views.indexOf(screen.view().rearView());
    };
    EXPECT_TRUE(isRightAbove());
    screen.reveal->setFrontViewPosition(FrontPositionSlidRight);
    EXPECT_FALSE(isRightAbove());
    screen.reveal->setFrontViewPosition(FrontPositionClosed);
    EXPECT_NE(screen.view().rearView(), nullptr);
    EXPECT_EQ(screen.view().frontView()->y(), 44);
    EXPECT_EQ(screen.view().frontView()->height(), 623);
}

TEST(Reveal, ATapClosesAnOpenFront) {
    RevealScreen screen;
    screen.reveal->tapGestureRecognizer();
    screen.reveal->revealToggleAnimated(Animated::No);
    screen.finger.tap({330, 300});
    screen.clock.advance(moved);
    EXPECT_EQ(screen.x(), 0);
}

TEST(Reveal, PushingSlidesOutReplacesAndCloses) {
    RevealScreen screen;
    screen.reveal->revealToggleAnimated(Animated::No);
    screen.diary.clear();
    screen.reveal->pushFrontViewController(screen.child("next"), Animated::Yes);
    screen.clock.advance(0.2);
    EXPECT_GT(screen.x(), 300);
    screen.clock.advance(0.15);
    EXPECT_EQ(screen.view().frontView()->childItems().last(),
              screen.reveal->frontViewController()->view());
    screen.clock.advance(moved);
    EXPECT_EQ(screen.x(), 0);
    EXPECT_EQ(screen.diary,
              (Words{"will move to 5", "animate to 5", "did move to 5", "will replace 2",
                     "next comes", "screen leaves", "screen is out", "next is in", "did replace 2",
                     "will move to 3", "animate to 3", "screen is gone", "did move to 3"}));
}

TEST(Reveal, ReplacementsWaitForAMoveAndDissolve) {
    RevealScreen screen;
    screen.reveal->revealToggle();
    const auto next = screen.child("next");
    screen.reveal->setFrontViewController(next, Animated::Yes);
    screen.reveal->setFrontViewController(next);  // the same: nothing to change over
    screen.clock.advance(0.2);
    EXPECT_FALSE(next->isViewLoaded());
    screen.clock.advance(0.2);
    EXPECT_GT(next->view()->opacity(), 0);
    EXPECT_LT(next->view()->opacity(), 1);
    screen.clock.advance(0.3);
    EXPECT_EQ(next->view()->opacity(), 1);
    EXPECT_EQ(screen.view().frontView()->childItems().last(), next->view());
    EXPECT_EQ(next->view()->size(), QSizeF(375, 667));
}

TEST(Reveal, ARemovedPositionTakesTheFrontChildAway) {
    RevealScreen screen;
    QQuickItem* front = screen.reveal->frontViewController()->view();
    screen.reveal->setFrontViewPosition(FrontPositionSlidRightRemoved, Animated::Yes);
    EXPECT_EQ(front->parentItem(), screen.view().frontView());
    screen.clock.advance(moved);
    EXPECT_EQ(front->parentItem(), nullptr);
    EXPECT_EQ(screen.x(), 320);
    screen.reveal->revealToggle();
    EXPECT_EQ(front->parentItem(), screen.view().frontView());
}

TEST(Reveal, ResizingDuringAMoveOrADragLeavesASoundLayout) {
    RevealScreen screen;
    screen.reveal->revealToggle();
    screen.clock.advance(0.1);
    screen.window.contentItem()->setSize({667, 375});
    EXPECT_EQ(screen.x(), 260);
    EXPECT_EQ(screen.view().frontView()->size(), QSizeF(667, 375));
    EXPECT_EQ(screen.view().rearView()->height(), 375);
    screen.clock.advance(moved);
    EXPECT_EQ(screen.diary.back(), "did move to 4");
    screen.finger.press({300, 200});
    screen.finger.move({200, 200});
    screen.window.contentItem()->setSize({375, 667});
    EXPECT_EQ(screen.view().frontView()->height(), 667) << "under the finger";
    EXPECT_NEAR(screen.x(), 170, 1);
}

TEST(Reveal, ThePointTestReachesBeyondTheBoundsOnlyWhereItIsExtended) {
    for (const bool extends : {true, false}) {
        RevealScreen screen;
        screen.reveal->revealToggleAnimated(Animated::No);
        screen.reveal->extendsPointInsideHit = extends;
        EXPECT_EQ(screen.view().contains(QPointF(500, 300)), extends) << "on the front view";
        EXPECT_FALSE(screen.view().contains({700, 300}));
        screen.view().setSize({300, 667});  // the front view juts out
        screen.finger.drag({340, 300}, {240, 300});
        screen.clock.advance(moved);
        EXPECT_EQ(screen.x(), extends ? 0 : 260);
    }
}

TEST(Reveal, GoesWithItsChildrenInTheMiddleOfAMove) {
    RevealScreen screen;
    screen.reveal->pushFrontViewController(screen.child("next"), Animated::Yes);
    screen.reveal->revealToggle();
    screen.clock.advance(0.1);
    screen.window.setRootViewController(nullptr);
    screen.reveal.reset();
    screen.clock.advance(1.0);
    EXPECT_EQ(std::count(screen.diary.begin(), screen.diary.end(), "next is gone"), 1);
}

}  // namespace
}  // namespace tarnwick::testing
