#include <gtest/gtest.h>

#include <QAccessible>
#include <QCoreApplication>
#include <QQuickWindow>
#include <QSemaphore>

#include "platform/views/ActivityIndicatorView.h"
#include "support/SteppedClock.h"
#include "ui/hud/BarProgressView.h"
#include "ui/hud/ProgressHUD.h"
#include "ui/hud/RoundProgressView.h"

namespace tarnwick::testing {
namespace {

// A screen of a phone, with a clock that stands still.
class ProgressHUDTest : public ::testing::Test {
protected:
    ProgressHUDTest() {
        window.resize(375, 667);
        view.setParentItem(window.contentItem());
        view.setSize({375, 667});
    }

    QQuickWindow window;
    QQuickItem view;
    SteppedClock clock;
};

TEST_F(ProgressHUDTest, FadesInAndOutAndLeaves) {
    const QPointer<ProgressHUD> hud = ProgressHUD::showHUDAddedTo(&view, Animated::Yes);
    EXPECT_EQ(hud->opacity(), 0);
    clock.advance(0.15);
    EXPECT_NEAR(hud->opacity(), 0.5, 0.1);
    clock.advance(0.2);
    EXPECT_EQ(hud->opacity(), 1);
    EXPECT_EQ(ProgressHUD::HUDForView(&view), hud);
    EXPECT_TRUE(ProgressHUD::hideHUDForView(&view, Animated::Yes));
    clock.advance(0.29);
    EXPECT_TRUE(hud && hud->parentItem() == &view && hud->opacity() < 0.1);
    clock.advance(0.02);
    EXPECT_TRUE(hud.isNull());
    EXPECT_FALSE(ProgressHUD::hideHUDForView(&view, Animated::Yes));
}

TEST_F(ProgressHUDTest, HiddenInTheTurnInWhichItWasShown) {
    const QPointer<ProgressHUD> fading = ProgressHUD::showHUDAddedTo(&view, Animated::Yes);
    fading->hide(Animated::Yes);
    clock.advance(0.35);
    EXPECT_TRUE(fading.isNull());
    ProgressHUD::showHUDAddedTo(&view, Animated::Yes)->hide(Animated::No);
    EXPECT_EQ(ProgressHUD::HUDForView(&view), nullptr);
}

TEST_F(ProgressHUDTest, ShownAgainWhileItFadesItStays) {
    const QPointer<ProgressHUD> hud = ProgressHUD::showHUDAddedTo(&view, Animated::No);
    hud->hide(Animated::Yes);
    clock.advance(0.15);
    const double before = hud->opacity();
    hud->show(Animated::Yes);
    EXPECT_EQ(hud->opacity(), before);
    clock.advance(1.0);
    ASSERT_TRUE(hud);
    EXPECT_EQ(hud->opacity(), 1);
}

TEST_F(ProgressHUDTest, ZoomsTheWayOfItsType) {
    for (const auto type : {ProgressHUD::AnimationZoomDown, ProgressHUD::AnimationZoomUp}) {
        const bool down = type == ProgressHUD::AnimationZoomDown;
        ProgressHUD hud(&view);
        hud.setParentItem(&view);
        hud.animationType = type;
        hud.show(Animated::Yes);
        EXPECT_EQ(hud.scale(), down ? 1.5 : 0.5);
        clock.advance(0.4);
        EXPECT_EQ(hud.scale(), 1.0);
        hud.hide(Animated::Yes);
        clock.advance(0.29);
        EXPECT_NEAR(hud.scale(), down ? 0.5 : 1.5, 0.05);
        hud.show(Animated::No);
        clock.advance(0.4);
        EXPECT_TRUE(hud.isVisible()) << "shown again while it went";
    }
}

TEST_F(ProgressHUDTest, WhatLiesUnderItTakesNoInputUntilTheLastOneHasGone) {
    QQuickItem content(&view);
    ProgressHUD* first = ProgressHUD::showHUDAddedTo(&view, Animated::No);
    ProgressHUD* second = ProgressHUD::showHUDAddedTo(&view, Animated::No);
    EXPECT_EQ(ProgressHUD::allHUDsForView(&view), (std::vector{first, second}));
    EXPECT_TRUE(ProgressHUD::hideHUDForView(&view, Animated::No)) << "the last one that was added";
    EXPECT_EQ(ProgressHUD::HUDForView(&view), first);
    EXPECT_FALSE(content.isEnabled());
    EXPECT_TRUE(first->isEnabled());
    EXPECT_EQ(ProgressHUD::hideAllHUDsForView(&view, Animated::Yes), 1);
    EXPECT_FALSE(content.isEnabled()) << "while it fades";
    clock.advance(0.4);
    EXPECT_TRUE(content.isEnabled());
    EXPECT_EQ(ProgressHUD::hideAllHUDsForView(&view, Animated::No), 0);
}

TEST_F(ProgressHUDTest, StaysForItsMinimumShowTime) {
    const QPointer<ProgressHUD> hud = ProgressHUD::showHUDAddedTo(&view, Animated::No);
    hud->minShowTime = 1.0;
    clock.advance(0.3);
    hud->hide(Animated::No);
    clock.advance(0.65);
    ASSERT_TRUE(hud && hud->isVisible());
    clock.advance(0.1);
    EXPECT_TRUE(hud.isNull());
}

TEST_F(ProgressHUDTest, AppearsAfterItsGraceTimeOnlyForARunningTask) {
    ProgressHUD unbound(&view);
    unbound.setParentItem(&view);
    unbound.graceTime = 0.5;
    unbound.show(Animated::No);
    clock.advance(1.0);
    EXPECT_FALSE(unbound.isVisible());

    for (const bool longTask : {true, false}) {
        ProgressHUD hud(&view);
        hud.setParentItem(&view);
        hud.graceTime = 0.5;
        QSemaphore done;
        int completions = 0;
        hud.showAnimatedWhileExecutingBlock(
            Animated::No, [&done] { done.acquire(); }, nullptr, [&] { ++completions; });
        clock.advance(longTask ? 0.6 : 0.2);
        EXPECT_EQ(hud.isVisible(), longTask);
        done.release();
        while (hud.taskInProgress)
            QCoreApplication::processEvents();
        clock.advance(1.0);
        EXPECT_FALSE(hud.isVisible());
        EXPECT_EQ(completions, 1);
    }
}

class Listener : public QObject, public ProgressHUDDelegate {
public:
    void hudWasHidden(ProgressHUD*) override { ++calls; }
    int calls = 0;
};

TEST_F(ProgressHUDTest, HidesAfterADelayAndTellsItsDelegateWeakly) {
    Listener listener;
    ProgressHUD hud(&view);
    hud.setParentItem(&view);
    hud.setDelegate(&listener);
    hud.show(Animated::No);
    for (const double delay : {0.5, 0.9})
        hud.hideAfterDelay(Animated::No, delay);
    clock.advance(0.4);
    EXPECT_TRUE(hud.isVisible());
    clock.advance(0.2);
    EXPECT_FALSE(hud.isVisible());
    EXPECT_EQ(listener.calls, 1);
    {
        Listener gone;
        hud.setDelegate(&gone);
    }
    hud.show(Animated::No);
    clock.advance(0.5);
    EXPECT_TRUE(hud.isVisible()) << "the later delay went with the HUD";
    hud.hide(Animated::No);
    EXPECT_EQ(listener.calls, 1);
}

TEST_F(ProgressHUDTest, EachModeHasItsIndicator) {
    ProgressHUD hud(&view);
    hud.setParentItem(&view);
    hud.setProgress(0.25);
    EXPECT_NE(qobject_cast<ActivityIndicatorView*>(hud.indicator()), nullptr);
    hud.setMode(ProgressHUD::ModeBar);
    EXPECT_EQ(qobject_cast<BarProgressView*>(hud.indicator())->progress(), 0.25);
    hud.setMode(ProgressHUD::ModePie);
    auto* round = qobject_cast<RoundProgressView*>(hud.indicator());
    EXPECT_FALSE(round->isAnnular());
    hud.setMode(ProgressHUD::ModeRing);
    EXPECT_EQ(hud.indicator(), round);
    EXPECT_TRUE(round->isAnnular());
    QQuickItem custom;
    QQuickItem otherCustom;
    hud.setCustomView(&custom);
    hud.setMode(ProgressHUD::ModeCustomView);
    EXPECT_EQ(hud.indicator(), &custom);
    hud.setCustomView(&otherCustom);
    EXPECT_EQ(hud.indicator(), &otherCustom);
    hud.setMode(ProgressHUD::ModeTextOnly);
    EXPECT_EQ(hud.indicator(), nullptr);
    EXPECT_EQ(custom.parentItem(), nullptr);
    EXPECT_EQ(QAccessible::queryAccessibleInterface(&hud)->text(QAccessible::Name), "Busy");
}

void expectLayout(const char* name, const HUDContents& contents, const QRectF& box, double labelY,
                  double detailsY) {
    const HUDLayout layout = layOut(contents);
    EXPECT_EQ(layout.box, box) << name;
    EXPECT_EQ(layout.label.y(), labelY) << name;
    EXPECT_EQ(layout.details.y(), detailsY) << name;
}

TEST(ProgressHUDLayout, StacksItsPartsInTheBox) {
    const auto details = [](const QSizeF& limit) { return QSizeF(150, 30).boundedTo(limit); };
    const QSizeF phone(375, 667);
    const HUDContents spinner = {.bounds = phone, .indicator = {37, 37}};
    const HUDContents label = {.bounds = phone, .label = {160, 20}};
    expectLayout("the indicator alone has no gaps", spinner, {149, 295, 77, 77}, 352, 352);
    HUDContents contents = spinner;
    contents.offset = {10, -20};
    expectLayout("shifted", contents, {159, 275, 77, 77}, 332, 332);
    contents = spinner;
    contents.minSize = {120, 80};
    expectLayout("at least so large", contents, {128, 294, 120, 80}, 352, 352);
    contents = spinner;
    contents.label = {100, 20};
    contents.details = details;
    expectLayout("all three", contents, {93, 266, 190, 135}, 327, 351);
    contents.indicator = {0, 0};
    contents.label = {0, 0};
    expectLayout("the text alone has no gaps", contents, {93, 299, 190, 70}, 319, 319);
    contents = label;
    contents.label = {500, 20};
    expectLayout("a line too wide is cut", contents, {20, 304, 335, 60}, 324, 344);
    contents = label;
    contents.square = true;
    expectLayout("square", contents, {88, 234, 200, 200}, 324, 344);
    contents.bounds = {375, 150};
    expectLayout("square only where it fits", contents, {88, 45, 200, 60}, 65, 85);
}

}  // namespace
}  // namespace tarnwick::testing
