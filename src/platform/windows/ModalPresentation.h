#pragma once

#include <QObject>
#include <QPointer>
#include <QQuickItem>
#include <functional>
#include <memory>

#include "platform/motion/Animation.h"

namespace tarnwick {

class Stage;
class ViewController;

// Shows a controller's view as a sheet that slides up over a stage and covers it; when the sheet
// has slid away, the stage gets the keyboard back. One sheet at a time. Main thread.
class ModalPresentation : public QObject {
    Q_OBJECT

public:
    // Both must outlive the presentation; the stage is in the container, into which sheets are put.
    ModalPresentation(Stage& stage, QQuickItem& container);
    // A sheet that is up vanishes.
    ~ModalPresentation() override;

    // Holds the controller until its sheet has gone. Nothing happens while a sheet is up. If the
    // presenter goes, nobody could dismiss the sheet: it is cut short.
    void present(ViewController& presenter, const std::shared_ptr<ViewController>& controller,
                 Animated animated);
    // Nothing happens unless the presenter's sheet is up.
    void dismiss(const ViewController& presenter, Animated animated,
                 std::function<void()> completion);

    // A sheet that is up vanishes. The task is called when its controller has kept what is to be
    // kept; at once if nothing is up.
    void cutShort(const std::function<void()>& whenKept = [] {});

    // What is up; none if nothing is, or if it is going.
    const std::shared_ptr<ViewController>& presented() const { return presented_; }

private:
    void leave(Animated animated, std::function<void()> completion);
    void end();

    Stage& stage_;
    QQuickItem& container_;
    QPointer<ViewController> presenter_;
    std::shared_ptr<ViewController> presented_;
    std::shared_ptr<ViewController> leaving_;
};

// How long a sheet takes to come or to go, in seconds.
inline constexpr double sheetDuration = 0.3;

}  // namespace tarnwick
