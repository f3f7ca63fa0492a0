#include <gtest/gtest.h>

#include <QAccessible>
#include <QCoreApplication>
#include <QImage>
#include <QPainter>
#include <QQuickWindow>
#include <QSemaphore>

#include "platform/threads/PlatformQueues.h"
#include "platform/views/ActivityIndicatorView.h"
#include "platform/views/LabelView.h"
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
    EXPECT_EQ(hud->alpha(), 0);
    clock.advance(0.15);
    EXPECT_NEAR(hud->alpha(), 0.5, 0.1);
    clock.advance(0.2);
    EXPECT_EQ(hud->alpha(), 1);
    EXPECT_EQ(ProgressHUD::HUDForView(&view), hud);
    EXPECT_TRUE(ProgressHUD::hideHUDForView(&view, Animated::Yes));
    clock.advance(0.29);
    EXPECT_TRUE(hud && hud->parentItem() == &view && hud->alpha() < 0.1);
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
    const double before = hud->alpha();
    hud->show(Animated::Yes);
    EXPECT_EQ(hud->alpha(), before);
    clock.advance(1.0);
    ASSERT_TRUE(hud);
    EXPECT_EQ(hud->alpha(), 1);
}

TEST_F(ProgressHUDTest, ZoomsTheWayOfItsType) {
    for (const auto type : {ProgressHUD::AnimationZoomDown, ProgressHUD::AnimationZoomUp}) {
        const bool down = type == ProgressHUD::AnimationZoomDown;
        ProgressHUD hud(&view);
        hud.setParentItem(&view);
        hud.setAnimationType(type);
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
        EXPECT_EQ(hud.scale(), 1.0);
    }
}

TEST_F(ProgressHUDTest, WhatLiesUnderItTakesNoInputUntilTheLastOneHasGone) {
    QQuickItem content(&view);
    QQuickItem disabled(&view);
    disabled.setEnabled(false);
    view.setEnabled(false);  // as under an alert
    ProgressHUD* first = ProgressHUD::showHUDAddedTo(&view, Animated::No);
    ProgressHUD* second = ProgressHUD::showHUDAddedTo(&view, Animated::No);
    EXPECT_EQ(ProgressHUD::allHUDsForView(&view), (std::vector{first, second}));
    EXPECT_TRUE(ProgressHUD::hideHUDForView(&view, Animated::No)) << "the last one that was added";
    EXPECT_EQ(ProgressHUD::HUDForView(&view), first);
    view.setEnabled(true);
    QQuickItem later(&view);
    for (const QQuickItem* item : {&content, &disabled, &later})
        EXPECT_FALSE(item->isEnabled());
    content.setEnabled(true);
    EXPECT_FALSE(content.isEnabled()) << "before its time";
    later.setParentItem(&content);
    EXPECT_TRUE(first->isEnabled());
    EXPECT_EQ(ProgressHUD::hideAllHUDsForView(&view, Animated::Yes), 1);
    EXPECT_FALSE(content.isEnabled()) << "while it fades";
    clock.advance(0.4);
    EXPECT_TRUE(content.isEnabled());
    EXPECT_TRUE(later.isEnabled());
    EXPECT_FALSE(disabled.isEnabled()) << "as it was";
    EXPECT_EQ(ProgressHUD::hideAllHUDsForView(&view, Animated::No), 0);
}

TEST_F(ProgressHUDTest, StaysForItsMinimumShowTime) {
    const QPointer<ProgressHUD> hud = ProgressHUD::showHUDAddedTo(&view, Animated::No);
    hud->setMinShowTime(1.0);
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
    unbound.setGraceTime(0.5);
    unbound.show(Animated::No);
    clock.advance(1.0);
    EXPECT_FALSE(unbound.isVisible());

    const PlatformQueues queues;
    for (const bool longTask : {true, false}) {
        ProgressHUD hud(&view);
        hud.setParentItem(&view);
        hud.setGraceTime(0.5);
        QSemaphore done;
        int completions = 0;
        hud.showAnimatedWhileExecutingBlock(
            Animated::No, [&done] { done.acquire(); }, nullptr, [&] { ++completions; });
        clock.advance(longTask ? 0.6 : 0.2);
        EXPECT_EQ(hud.isVisible(), longTask);
        done.release();
        while (hud.taskInProgress())
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
    EXPECT_EQ(hud.delegate(), nullptr);
    hud.show(Animated::No);
    clock.advance(0.5);
    EXPECT_TRUE(hud.isVisible()) << "the later delay went with the HUD";
    hud.hide(Animated::No);
    EXPECT_EQ(listener.calls, 1);
}

// It could never be told.
class NoObject : public ProgressHUDDelegate {};
static_assert(std::is_convertible_v<Listener*, WeakDelegate<ProgressHUDDelegate>>);
static_assert(!std::is_convertible_v<NoObject*, WeakDelegate<ProgressHUDDelegate>>);
static_assert(!std::is_convertible_v<ProgressHUDDelegate*, WeakDelegate<ProgressHUDDelegate>>);

TEST_F(ProgressHUDTest, NothingOfAHiddenHudReachesItsNextShowing) {
    ProgressHUD hud(&view);
    hud.setParentItem(&view);
    auto* spinner = qobject_cast<ActivityIndicatorView*>(hud.indicator());
    const std::function<void()> leftovers[] = {[&hud] { hud.hideAfterDelay(Animated::No, 0.5); },
                                               [&hud] {
                                                   hud.setMinShowTime(0.5);
                                                   hud.hide(Animated::No);
                                                   hud.setMinShowTime(0);
                                               },
                                               [&hud] {
                                                   hud.setGraceTime(0.5);
                                                   hud.show(Animated::No);
                                                   hud.setGraceTime(0);
                                                   hud.setTaskInProgress(true);
                                               }};
    for (const auto& leave : leftovers) {
        hud.show(Animated::No);
        EXPECT_TRUE(spinner->isTurning());
        leave();
        hud.hide(Animated::No);
        clock.advance(0.6);
        EXPECT_FALSE(hud.isVisible() || spinner->isTurning());
        leave();
        hud.hide(Animated::No);
        hud.show(Animated::No);
        clock.advance(0.6);
        EXPECT_TRUE(hud.isVisible());
        hud.hide(Animated::No);
        EXPECT_EQ(hud.findChildren<Pause*>().size(), 2) << "no delayed hides";
    }
}

TEST_F(ProgressHUDTest, ShownAgainByItsCompletionBlockItStays) {
    const QPointer<ProgressHUD> hud = ProgressHUD::showHUDAddedTo(&view, Animated::No);
    hud->setCompletionBlock([this, hud] {
        hud->setParentItem(&view);
        hud->show(Animated::No);
    });
    hud->hide(Animated::No);
    clock.advance(0.1);
    EXPECT_TRUE(hud && hud->isVisible());
    hud->hide(Animated::No);
    clock.advance(0.1);
    EXPECT_TRUE(hud.isNull());
}

// Keeps what it is given until the test runs it.
class HeldQueues : public TaskQueues {
public:
    void runInBackground(Task task) override { held.push_back(std::move(task)); }
    void performOnMainThreadAndWait(Task task) override { task(); }
    void dispatchToGlobalQueue(Task task) override { held.push_back(std::move(task)); }
    void dispatchToMainQueue(Task task) override { task(); }

    std::vector<Task> held;
};

TEST_F(ProgressHUDTest, LivesUntilItsTaskHasEndedAndIsNotHiddenByAnEarlierOne) {
    HeldQueues queues;
    auto goes = std::make_unique<QQuickItem>();
    const QPointer<ProgressHUD> hud = ProgressHUD::showHUDAddedTo(goes.get(), Animated::No);
    hud->showAnimatedWhileExecutingBlock(
        Animated::No, [] {}, &queues);
    hud->hide(Animated::No);
    hud->setParentItem(&view);
    hud->showAnimatedWhileExecutingBlock(
        Animated::No, [&hud] { hud->setProgress(1.0); }, &queues);
    queues.held.at(0)();
    EXPECT_TRUE(hud->isVisible() && hud->taskInProgress());
    goes.reset();
    hud->hide(Animated::No);
    finishDeletions();
    ASSERT_TRUE(hud) << "it may still be used by its task";
    queues.held.at(1)();
    finishDeletions();
    EXPECT_TRUE(hud.isNull());
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
    EXPECT_EQ(otherCustom.parentItem(), nullptr);
    EXPECT_EQ(QAccessible::queryAccessibleInterface(&hud)->text(QAccessible::Name), "Busy");
}

TEST_F(ProgressHUDTest, ACustomViewIsMeasuredAtEachLayoutAndOnlyTakenOut) {
    ProgressHUD hud(&view);
    hud.setParentItem(&view);
    hud.setMode(ProgressHUD::ModeCustomView);
    QPointer<QQuickItem> custom = new QQuickItem;
    hud.setCustomView(custom);
    struct Row {
        double parent;
        double wanted;
        double given;
    };
    for (const Row& row : {Row{375, 50, 50}, {375, 200, 200}, {200, 200, 120}, {375, 120, 200}}) {
        view.setWidth(row.parent);
        custom->setWidth(row.wanted);
        hud.ensurePolished();
        EXPECT_EQ(custom->width(), row.given) << row.parent << ", " << row.wanted;
        EXPECT_EQ(custom->x(), std::round((row.parent - row.given) / 2));
    }
    for (QQuickItem* next : {static_cast<QQuickItem*>(nullptr), custom.data()}) {
        hud.setCustomView(next);
        ASSERT_TRUE(custom);
        EXPECT_EQ(custom->parentItem(), next != nullptr ? &hud : nullptr);
    }
    delete custom;
    EXPECT_EQ(hud.indicator(), nullptr);
}

TEST(LabelView, ShowsWholeLinesAndKeepsItsBreaks) {
    LabelView label(nullptr);
    const auto sizeOf = [&label](const QString& text, double width, double height) {
        label.setText(text);
        const QSizeF size = label.sizeWithin({width, height});
        EXPECT_EQ(label.sizeWithin(size), size) << "no other lines when it is painted";
        return size;
    };
    const double line = sizeOf("a", 1e6, 1e6).height();
    const QString words = QString("several words that need lines ").repeated(9);
    for (const double width : {90.0, 123.0, 200.0})
        EXPECT_EQ(sizeOf(words, width, 3.5 * line).height(), 3 * line) << width;
    EXPECT_LE(sizeOf(QString(200, 'w'), 100, 1e6).width(), 100) << "one long word";
    EXPECT_EQ(sizeOf("a\nb\nc", 200, 2.5 * line).height(), 2 * line);
    EXPECT_EQ(sizeOf(words, 200, line / 2), QSizeF(0, 0));
    EXPECT_EQ(sizeOf(words, -20, 1e6), QSizeF(0, 0));
    label.setLines(LabelView::Lines::Unwrapped);
    EXPECT_EQ(sizeOf("a\n\nb", 1e6, 1e6).height(), 3 * line);
    EXPECT_EQ(sizeOf(words, 1e6, 1e6).height(), line);
}

QImage picture(PaintedView& view) {
    QImage image(view.size().toSize(), QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    view.paint(&painter);
    return image;
}

// How far the middle row is filled, with parts of a pixel.
double filledWidth(const QImage& image) {
    double width = 0;
    for (int x = 0; x < image.width(); ++x)
        width += image.pixelColor(x, image.height() / 2).alphaF();
    return width;
}

TEST(BarProgressView, IsFilledInProportionFromEndToEnd) {
    BarProgressView bar(QRectF(0, 0, 120, 20));
    bar.setLineColor(Qt::transparent);
    for (const double progress : {0.0, 0.01, 0.05, 0.5, 0.94, 0.96, 0.99, 1.0}) {
        bar.setProgress(progress);
        EXPECT_NEAR(filledWidth(picture(bar)), progress * 112, 0.3) << progress;
    }
}

TEST(ProgressViews, TakeAProgressOutOfRangeForTheNearestInIt) {
    for (const double width : {1.0, 3.0, 37.0, 120.0}) {
        BarProgressView bar(QRectF(0, 0, width, 20));
        RoundProgressView pie(QRectF(0, 0, width, 37));
        RoundProgressView ring(QRectF(0, 0, width, 37));
        ring.setAnnular(true);
        const auto pictures = [&](double progress) {
            bar.setProgress(progress);
            pie.setProgress(progress);
            ring.setProgress(progress);
            return QList{picture(bar), picture(pie), picture(ring)};
        };
        EXPECT_EQ(pictures(7), pictures(1)) << width;
        for (const double low : {-0.5, std::nan("")})
            EXPECT_EQ(pictures(low), pictures(0)) << width;
    }
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
    contents = label;
    contents.bounds = {30, 667};
    expectLayout("no wider than its parent", contents, {0, 304, 30, 60}, 324, 344);
    contents.margin = -20;
    expectLayout("no margin is the smallest", contents, {0, 324, 30, 20}, 324, 344);
}

}  // namespace
}  // namespace tarnwick::testing
