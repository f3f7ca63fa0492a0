#pragma once

#include <QCoreApplication>
#include <memory>
#include <string>
#include <vector>

#include "platform/gestures/TapGestureRecognizer.h"
#include "platform/motion/Frames.h"
#include "platform/windows/Window.h"
#include "support/Finger.h"
#include "support/SteppedClock.h"
#include "ui/reveal/RevealView.h"
#include "ui/reveal/RevealViewController.h"
#include "ui/reveal/RevealViewControllerPanGestureRecognizer.h"

namespace tarnwick::testing {

using Words = std::vector<std::string>;

// A screen that writes down what it hears.
class Child : public ViewController {
public:
    Child(std::string name, Words& diary) : name_(std::move(name)), diary_(diary) {}
    ~Child() override { diary_.push_back(name_ + " is gone"); }

    void willMoveToParentViewController(ViewController* parent) override {
        diary_.push_back(name_ + (parent != nullptr ? " comes" : " leaves"));
    }
    void didMoveToParentViewController(ViewController* parent) override {
        diary_.push_back(name_ + (parent != nullptr ? " is in" : " is out"));
    }

private:
    const std::string name_;
    Words& diary_;
};

// Writes down what the container tells.
class Listener : public QObject, public RevealViewControllerDelegate {
public:
    explicit Listener(Words& diary) : diary_(diary) {}

    void revealControllerWillMoveToPosition(Reveal&, RevealPosition position) override {
        diary_.push_back("will move to " + std::to_string(position));
    }
    void revealControllerDidMoveToPosition(Reveal&, RevealPosition position) override {
        diary_.push_back("did move to " + std::to_string(position));
    }
    void revealControllerAnimateToPosition(Reveal&, RevealPosition position,
                                           std::vector<Change>&) override {
        diary_.push_back("animate to " + std::to_string(position));
    }
    bool revealControllerPanGestureShouldBegin(Reveal&) override { return panMayBegin; }
    void revealControllerPanGestureBegan(Reveal&) override { diary_.push_back("drag began"); }
    void revealControllerPanGestureEnded(Reveal&) override { diary_.push_back("drag ended"); }
    void revealControllerPanGestureEndedToLocationProgress(Reveal&, double location,
                                                           double progress) override {
        endLocation = location;
        endProgress = progress;
    }
    void revealControllerWillAddViewControllerForOperationAnimated(Reveal&, ViewController*,
                                                                   ChildReplacement operation,
                                                                   Animated) override {
        diary_.push_back("will replace " + std::to_string(operation));
    }
    void revealControllerDidAddViewControllerForOperationAnimated(Reveal&, ViewController*,
                                                                  ChildReplacement operation,
                                                                  Animated) override {
        diary_.push_back("did replace " + std::to_string(operation));
    }

    bool panMayBegin = true;
    double endLocation = 0;
    double endProgress = 0;

private:
    Words& diary_;
};

// A phone's window with a container that fills it, a menu at its left and a screen in front; a
// finger, and a clock that stands still.
class RevealScreen {
public:
    explicit RevealScreen(bool hasRight = false) {
        window.resize(375, 667);
        window.show();
        QCoreApplication::processEvents();  // it takes its size then
        reveal = makeViewController<RevealViewController>(child("menu"), child("screen"));
        if (hasRight)
            reveal->setRightViewController(child("right"));
        window.setRootViewController(reveal);
        reveal->panGestureRecognizer();
        reveal->setDelegate(&listener);
        diary.clear();
    }
    ~RevealScreen() {
        reveal.reset();
        window.setRootViewController(nullptr);
        finishDeletions();  // the controllers write their end into the diary
    }
    RevealScreen(const RevealScreen&) = delete;
    RevealScreen& operator=(const RevealScreen&) = delete;

    std::shared_ptr<Child> child(const std::string& name) {
        return makeViewController<Child>(name, diary);
    }
    RevealView& view() { return *static_cast<RevealView*>(reveal->view()); }
    double x() { return view().frontView()->x(); }
    RevealPosition position() { return reveal->frontViewPosition(); }
    // Drags the front view to where its x is this, and lets it go when it has come to rest.
    void dragSlowlyTo(double target) {
        const int way = static_cast<int>(target - x());
        const int threshold = way < 0 ? -10 : 10;
        finger.press({190, 300});
        finger.move({190 + way + threshold, 300}, 0.5);
        finger.rest(0.3);
        finger.lift();
    }

    Words diary;
    Listener listener{diary};
    SteppedClock clock;
    Window window;
    Finger finger{window, clock};
    std::shared_ptr<RevealViewController> reveal;
};

}  // namespace tarnwick::testing
