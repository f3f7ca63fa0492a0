#include <gtest/gtest.h>

#include <cstdlib>
#include <random>

#include "support/RevealScreen.h"

namespace tarnwick::testing {
namespace {

constexpr int stepCount = 20;
constexpr double restingTime = stepCount * 0.7;  // seconds: a push for each step is over then

// What a restless person and a busy program do to a container, in an order that the seed decides.
class Walk {
public:
    explicit Walk(unsigned seed) : random_(seed), screen_(seed % 2 == 0) {
        screen_.reveal->tapGestureRecognizer();
        frontLayers_ = screen_.view().frontView()->childItems().size() - 1;
    }

    void go() {
        for (int step = 0; step < stepCount; ++step)
            takeStep();
        screen_.finger.liftSecond();
        screen_.finger.lift();
        screen_.clock.advance(restingTime);
    }

    void expectViewsInPlace() {
        RevealView& view = screen_.view();
        EXPECT_TRUE(view.isEnabled());
        EXPECT_FALSE(view.disableLayout);
        EXPECT_EQ(screen_.x(), locationOf(screen_.position()));
        EXPECT_EQ(view.frontView()->size(), view.size());
        expectInPlace(screen_.reveal->frontViewController(), ReplaceFront);
        expectInPlace(screen_.reveal->rearViewController(), ReplaceRear);
        expectInPlace(screen_.reveal->rightViewController(), ReplaceRight);
    }

    void expectAnswers() {
        screen_.reveal->setFrontViewPosition(FrontPositionClosed);
        EXPECT_EQ(screen_.x(), 0) << "nothing waits any more";
        screen_.reveal->revealToggle();
        screen_.clock.advance(0.35);
        const int open = static_cast<int>(locationOf(FrontPositionSlidRight));
        EXPECT_EQ(screen_.x(), open);
        screen_.finger.drag({open + 40, 200}, {60, 200}, 0.3);
        screen_.clock.advance(0.35);
        EXPECT_EQ(screen_.x(), 0);
    }

private:
    int upTo(int most) { return static_cast<int>(random_() % static_cast<unsigned>(most + 1)); }
    Animated either() { return upTo(2) == 0 ? Animated::No : Animated::Yes; }
    QPoint anywhere() { return {upTo(374), upTo(666)}; }
    double aMoment() { return upTo(40) / 100.0; }

    double locationOf(RevealPosition position) {
        return frontLocation(screen_.reveal->geometryIn(screen_.view().size()), position);
    }

    void takeStep() {
        switch (upTo(9)) {
            case 0:
                return screen_.reveal->revealToggleAnimated(either());
            case 1:
                return screen_.reveal->rightRevealToggleAnimated(either());
            case 2:
                return screen_.reveal->setFrontViewPosition(static_cast<RevealPosition>(upTo(6)),
                                                            either());
            case 3:
                return screen_.reveal->pushFrontViewController(screen_.child("pushed"), either());
            case 4:
                return replace();
            case 5:
                screen_.finger.lift();
                return screen_.finger.press(anywhere());
            case 6:
                return screen_.finger.move(anywhere(), aMoment(), 1 + upTo(5));
            case 7:
                return endTouch();
            case 8:
                return screen_.window.contentItem()->setSize(upTo(1) == 0 ? QSizeF(375, 667)
                                                                          : QSizeF(667, 375));
            default:
                return screen_.clock.advance(aMoment());
        }
    }

    void replace() {
        const int side = screen_.reveal->rightViewController() ? 2 : 1;
        screen_.reveal->performTransitionOperation(
            static_cast<ChildReplacement>(ReplaceRear + upTo(side)), screen_.child("replaced"),
            either());
    }

    void endTouch() {
        switch (upTo(3)) {
            case 0:
                screen_.finger.liftSecond();
                return screen_.finger.pressSecond(anywhere());
            case 1:
                return screen_.finger.liftSecond();
            case 2:
                return screen_.finger.cancel();
            default:
                return screen_.finger.lift();
        }
    }

    // In the view that it belongs into if it is to be seen, and nowhere otherwise.
    void expectInPlace(const std::shared_ptr<ViewController>& controller, ChildReplacement place) {
        QQuickItem* slot = screen_.view().slotOf(place);
        const bool seen = controller && isSeen(place, screen_.position());
        EXPECT_EQ(slot != nullptr, seen || place == ReplaceFront) << place;
        if (!seen || slot == nullptr)
            return;
        EXPECT_EQ(controller->view()->parentItem(), slot) << place;
        EXPECT_EQ(controller->view()->size(), slot->size()) << place;
        EXPECT_EQ(controller->view()->opacity(), 1) << place;
        EXPECT_TRUE(controller->view()->isEnabled()) << place;
        EXPECT_EQ(slot->childItems().size(), place == ReplaceFront ? frontLayers_ + 1 : 1) << place;
    }

    std::mt19937 random_;
    RevealScreen screen_;
    qsizetype frontLayers_ = 0;  // below the child's view
};

// TARNWICK_WALKS in the environment makes it another number.
unsigned numberOfWalks() {
    const char* number = std::getenv("TARNWICK_WALKS");
    return number != nullptr ? static_cast<unsigned>(std::atoi(number)) : 100;
}

TEST(RevealWalk, EndsWithViewsInPlaceThatAnswer) {
    for (unsigned seed = 0; seed < numberOfWalks() && !::testing::Test::HasFailure(); ++seed) {
        SCOPED_TRACE("seed " + std::to_string(seed));
        Walk walk(seed);
        walk.go();
        walk.expectViewsInPlace();
        walk.expectAnswers();
    }
}

}  // namespace
}  // namespace tarnwick::testing
