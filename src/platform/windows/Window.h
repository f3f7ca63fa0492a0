#pragma once

#include <QQuickWindow>
#include <memory>

#include "platform/gestures/GestureArbiter.h"
#include "platform/views/Stage.h"
#include "platform/windows/AlertPresenter.h"
#include "platform/windows/ModalPresentation.h"

namespace tarnwick {

class ViewController;

// The application's window: shows one controller's view, a sheet over it, and alerts over both. Its
// gesture recognisers see a touch before its items do. Main thread.
class Window : public QQuickWindow {
    Q_OBJECT

public:
    Window();
    ~Window() override;

    const std::shared_ptr<ViewController>& rootViewController() const { return root_; }
    // Its view fills the window from now on; that of the former one leaves it, and a sheet is cut
    // short. May be none.
    void setRootViewController(const std::shared_ptr<ViewController>& root);

    // In front of other windows, with the keyboard.
    void makeKeyAndVisible();

    AlertPresenter& alerts() { return alerts_; }
    ModalPresentation& modalPresentation() { return modalPresentation_; }

protected:
    bool event(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    void followFocus();

    GestureArbiter arbiter_;
    std::shared_ptr<ViewController> root_;
    Stage stage_;   // what alerts cover: the screen and what is presented over it
    Stage screen_;  // what a sheet covers
    ModalPresentation modalPresentation_;
    AlertPresenter alerts_;
};

}  // namespace tarnwick
