#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QQmlComponent>
#include <QQmlEngine>
#include <memory>

#include "platform/gestures/TapGestureRecognizer.h"
#include "platform/windows/Window.h"
#include "support/Finger.h"
#include "ui/reveal/RevealViewControllerPanGestureRecognizer.h"

namespace tarnwick::testing {
namespace {

using enum GestureState;
using States = std::vector<GestureState>;

// Buttons on a list that scrolls, and below it one by itself.
const char scene[] = R"(
    import QtQuick
    Item {
        id: page
        width: 375; height: 667
        property int presses: 0
        component Button: MouseArea { width: 375; height: 80; onClicked: ++page.presses }
        Flickable {
            objectName: "list"
            width: 375; height: 400; contentHeight: 2000
            Button { objectName: "row"; x: 100; y: 200; width: 200 }
        }
        Button { objectName: "button"; y: 500 }
    })";
constexpr QPoint onRow = {180, 240};
constexpr QPoint onButton = {180, 540};

// Notes the states that its action finds; one Changed stands for many.
template <class Recognizer>
struct Watched : public Recognizer {
    Watched()
        : Recognizer([this] {
              if (states.empty() || states.back() != this->state())
                  states.push_back(this->state());
              // A copy: it may delete this.
              if (const auto next = then)
                  next();
          }) {}
    States states;
    std::function<void()> then;
};

struct Referee : public QObject, public GestureRecognizerDelegate {
    bool gestureRecognizerShouldBegin(GestureRecognizer& recognizer) override {
        if (const auto* pan = qobject_cast<PanGestureRecognizer*>(&recognizer))
            wayAtBegin = pan->translation(nullptr);
        return lets;
    }
    bool gestureRecognizerShouldRecognizeSimultaneouslyWith(GestureRecognizer&,
                                                            GestureRecognizer&) override {
        return letsRunTogether;
    }
    bool lets = true;
    bool letsRunTogether = false;
    QPointF wayAtBegin;
};

class Gestures : public ::testing::TestWithParam<Pointer> {
protected:
    Gestures() {
        QQmlComponent component(&engine);
        component.setData(scene, {});
        page.reset(qobject_cast<QQuickItem*>(component.create()));
        page->setParentItem(window.contentItem());
        window.resize(375, 667);
        window.show();
        QCoreApplication::processEvents();
        addGestureRecognizer(page.get(), &pan);
    }

    QQuickItem* item(const char* name) const { return page->findChild<QQuickItem*>(name); }
    int presses() const { return page->property("presses").toInt(); }
    double scrolled() const { return item("list")->property("contentY").toDouble(); }
    void dragAside(const QPoint& from) { finger.drag(from, from + QPoint(50, 0)); }
    void startToDrag() {
        pan.states.clear();
        finger.press(onRow);
        finger.move(onRow + QPoint(50, 0));
    }

    QQmlEngine engine;
    Window window;
    std::unique_ptr<QQuickItem> page;
    SteppedClock clock;
    Finger finger{window, clock, GetParam()};
    Watched<RevealViewControllerPanGestureRecognizer> pan;
    const States wholeDrag = {Began, Changed, Ended};
};

TEST_P(Gestures, ASidewaysDragNeitherPressesNorScrolls) {
    for (const QPoint from : {onRow, onButton}) {
        pan.states.clear();
        finger.press(from);
        finger.move(from + QPoint(-100, 3));
        EXPECT_FALSE(item("row")->property("pressed").toBool());
        EXPECT_FALSE(item("button")->property("pressed").toBool());
        finger.move(from + QPoint(-100, -150));
        finger.lift();
        EXPECT_EQ(pan.states, wholeDrag);
    }
    EXPECT_EQ(presses(), 0);
    EXPECT_EQ(scrolled(), 0);
    EXPECT_FALSE(item("list")->property("moving").toBool());
}

TEST_P(Gestures, WhatAnItemKeepsIsTheItems) {
    finger.drag(onRow, onRow - QPoint(20, 150));
    EXPECT_GT(scrolled(), 50);
    EXPECT_EQ(pan.state(), Failed);
    EXPECT_EQ(presses(), 0);
    item("button")->setProperty("preventStealing", true);
    dragAside(onButton);
    EXPECT_EQ(pan.states, States());
    EXPECT_EQ(presses(), 1);
}

TEST_P(Gestures, AStillPressPresses) {
    finger.tap(onRow);
    finger.rest(1);  // or the second one would be a double tap
    // The list holds the press back and sends it again.
    item("list")->setProperty("pressDelay", 100);
    finger.tap(onRow);
    finger.drag(onButton, onButton + QPoint(4, 4));
    EXPECT_EQ(presses(), 3);
    EXPECT_EQ(pan.states, States());
}

TEST_P(Gestures, ARefusedDragScrollsButNeverPresses) {
    Referee referee;
    referee.lets = false;
    pan.setDelegate(&referee);
    for (const QPoint from : {onRow, onButton})
        dragAside(from);
    EXPECT_EQ(scrolled(), 0);
    finger.press(onRow);
    finger.move(onRow + QPoint(20, 0));
    finger.move(onRow + QPoint(20, -120));
    const double held = scrolled();
    EXPECT_GT(held, 30);
    finger.lift();
    finger.rest(0.5);
    EXPECT_GT(scrolled(), held + 30) << "it flicks";
    EXPECT_EQ(presses(), 0);
    EXPECT_EQ(pan.states, States());
}

TEST_P(Gestures, TranslationAndVelocityAreThoseOfTheTouch) {
    Referee referee;
    pan.setDelegate(&referee);
    QQuickItem half(page.get());
    half.setScale(0.5);
    half.setTransformOrigin(QQuickItem::TopLeft);
    finger.press(onButton);
    finger.move(onButton + QPoint(60, 0), 0.02, 1);
    // The way of the threshold is left out from the begin on, and no more than that.
    EXPECT_EQ(referee.wayAtBegin, QPointF(60, 0));
    EXPECT_EQ(pan.translation(page.get()), QPointF(50, 0));
    EXPECT_EQ(pan.velocity(page.get()), QPointF(3000, 0));
    finger.move(onButton + QPoint(-40, 20), 0.2, 20);
    EXPECT_EQ(pan.translation(&half), QPointF(-100, 40));
    EXPECT_EQ(pan.velocity(&half), QPointF(-1000, 200));
    EXPECT_EQ(pan.location(&half), QPointF(280, 1120));
    finger.rest(0.05);
    finger.lift();
    EXPECT_EQ(pan.velocity(nullptr), QPointF(-250, 50));
    startToDrag();
    finger.rest(0.1);
    finger.lift();
    EXPECT_EQ(pan.velocity(nullptr), QPointF());
}

TEST_P(Gestures, InterruptionsCancelADragAndNothingFollowsUntilAllIsUp) {
    const std::function<void()> interruptions[] = {
        [this] { finger.pressSecond(onRow); },
        [this] { GetParam() == Pointer::Touch ? finger.cancel() : window.hide(); },
        [this] {
            QFocusEvent away(QEvent::FocusOut);
            QCoreApplication::sendEvent(&window, &away);
        },
    };
    for (const auto& interrupt : interruptions) {
        startToDrag();
        interrupt();
        EXPECT_EQ(pan.states, (States{Began, Changed, Cancelled}));
        finger.move(onRow);
        finger.lift();
        finger.liftSecond();
        EXPECT_EQ(pan.states.size(), 3U);
        EXPECT_EQ(presses(), 0);
        window.show();
        finger.press(onRow);
        interrupt();
        EXPECT_EQ(pan.state(), Failed);
        finger.lift();
        finger.liftSecond();
        page->setProperty("presses", 0);
    }
    dragAside(onRow);
    EXPECT_EQ(pan.states.back(), Ended);
}

TEST_P(Gestures, ATapIsTakenFromTheButtonUnderIt) {
    Watched<TapGestureRecognizer> tap;
    Referee referee;
    tap.setDelegate(&referee);
    addGestureRecognizer(page.get(), &tap);
    finger.tap(onButton);
    EXPECT_EQ(tap.states, States{Ended});
    EXPECT_EQ(presses(), 0);
    dragAside(onButton);
    EXPECT_EQ(tap.states.size(), 1U);
    EXPECT_EQ(pan.states, wholeDrag);
    referee.lets = false;
    finger.tap(onButton);
    EXPECT_EQ(tap.states.size(), 1U);
    EXPECT_EQ(presses(), 1);
}

TEST_P(Gestures, OfTwoDragsTheInnerOneBeginsUnlessTheyMayRunTogether) {
    Watched<PanGestureRecognizer> inner;
    Referee referee;
    pan.setDelegate(&referee);
    // On a second view as well.
    for (const char* name : {"row", "button"})
        addGestureRecognizer(item(name), &inner);
    dragAside(onRow);
    dragAside(onButton);
    EXPECT_EQ(inner.states, (States{Began, Changed, Ended, Began, Changed, Ended}));
    EXPECT_EQ(pan.states, States());
    referee.letsRunTogether = true;
    inner.states.clear();
    dragAside(onRow);
    EXPECT_EQ(inner.states, wholeDrag);
    EXPECT_EQ(pan.states, wholeDrag);
}

TEST_P(Gestures, ViewsRecognisersAndDelegatesMayGoDuringADrag) {
    auto referee = std::make_unique<Referee>();
    auto* goes = new Watched<PanGestureRecognizer>;
    goes->setDelegate(referee.get());
    goes->then = [&goes] { delete std::exchange(goes, nullptr); };
    addGestureRecognizer(item("row"), goes);
    finger.press(onRow);
    referee.reset();
    finger.move(onRow + QPoint(50, 0));
    finger.lift();
    EXPECT_EQ(goes, nullptr);
    EXPECT_EQ(presses(), 0);

    addGestureRecognizer(page.get(), &pan);
    startToDrag();
    page.reset();
    finger.move(onRow);
    finger.lift();
    EXPECT_EQ(pan.states, (States{Began, Changed, Cancelled}));
}

TEST_P(Gestures, ATouchBelongsToTheTopmostViewThatShowsThere) {
    QQuickItem cover(window.contentItem());
    cover.setSize({375, 667});
    const std::function<void(bool)> uncovers[] = {
        [&](bool on) { cover.setZ(on ? -1 : 0); }, [&](bool on) { cover.setEnabled(!on); },
        [&](bool on) { cover.setOpacity(on ? 0 : 1); }, [&](bool on) { cover.setVisible(!on); },
        [&](bool on) { cover.setX(on ? 300 : 0); }};
    for (const auto& uncover : uncovers)
        for (const bool on : {false, true}) {
            pan.states.clear();
            uncover(on);
            dragAside(onButton);
            EXPECT_EQ(pan.states, on ? wholeDrag : States()) << &uncover - uncovers;
            uncover(false);
        }
}

INSTANTIATE_TEST_SUITE_P(By, Gestures, ::testing::Values(Pointer::Touch, Pointer::Mouse));

}  // namespace
}  // namespace tarnwick::testing
