#pragma once

#include <memory>
#include <vector>

#include "platform/motion/Animation.h"
#include "ui/reveal/RevealGeometry.h"
#include "ui/reveal/RevealTransition.h"

namespace tarnwick {

class GestureRecognizer;
class RevealViewController;
class ViewController;

// Told of what a reveal container does, and asked what it may. Everything is optional. Held weakly:
// an implementation is a QObject too. Locations are the front view's x in points; for the progress
// see revealProgress().
class RevealViewControllerDelegate {
public:
    using Reveal = RevealViewController;

    virtual ~RevealViewControllerDelegate() = default;

    virtual void revealControllerWillMoveToPosition(Reveal&, RevealPosition) {}
    virtual void revealControllerDidMoveToPosition(Reveal&, RevealPosition) {}
    // What is added to the changes moves along with the front view.
    virtual void revealControllerAnimateToPosition(Reveal&, RevealPosition, std::vector<Change>&) {}

    virtual bool revealControllerPanGestureShouldBegin(Reveal&) { return true; }
    virtual bool revealControllerTapGestureShouldBegin(Reveal&) { return true; }
    virtual bool
    revealControllerPanGestureRecognizerShouldRecognizeSimultaneouslyWithGestureRecognizer(
        Reveal&, GestureRecognizer&) {
        return false;
    }
    virtual bool
    revealControllerTapGestureRecognizerShouldRecognizeSimultaneouslyWithGestureRecognizer(
        Reveal&, GestureRecognizer&) {
        return false;
    }

    virtual void revealControllerPanGestureBegan(Reveal&) {}
    virtual void revealControllerPanGestureEnded(Reveal&) {}

    // Of each pair the first is called; a delegate that does not need the progress in the
    // overdraw implements the second.
    virtual void revealControllerPanGestureBeganFromLocationProgressOverProgress(
        Reveal& reveal, double location, double progress, double /*overProgress*/) {
        revealControllerPanGestureBeganFromLocationProgress(reveal, location, progress);
    }
    virtual void revealControllerPanGestureBeganFromLocationProgress(Reveal&, double, double) {}
    virtual void revealControllerPanGestureMovedToLocationProgressOverProgress(
        Reveal& reveal, double location, double progress, double /*overProgress*/) {
        revealControllerPanGestureMovedToLocationProgress(reveal, location, progress);
    }
    virtual void revealControllerPanGestureMovedToLocationProgress(Reveal&, double, double) {}
    virtual void revealControllerPanGestureEndedToLocationProgressOverProgress(
        Reveal& reveal, double location, double progress, double /*overProgress*/) {
        revealControllerPanGestureEndedToLocationProgress(reveal, location, progress);
    }
    virtual void revealControllerPanGestureEndedToLocationProgress(Reveal&, double, double) {}

    virtual void revealControllerWillAddViewControllerForOperationAnimated(Reveal&, ViewController*,
                                                                           ChildReplacement,
                                                                           Animated) {}
    virtual void revealControllerDidAddViewControllerForOperationAnimated(Reveal&, ViewController*,
                                                                          ChildReplacement,
                                                                          Animated) {}
    // Nothing: the default animation.
    virtual std::shared_ptr<TransitionAnimationController>
    revealControllerAnimationControllerForOperationFromViewControllerToViewController(
        Reveal&, ChildReplacement, ViewController* /*from*/, ViewController* /*to*/) {
        return nullptr;
    }
};

}  // namespace tarnwick
