#pragma once

#include <QPointer>
#include <memory>

#include "platform/motion/Pause.h"
#include "platform/views/Cover.h"
#include "platform/views/Stage.h"
#include "ui/reveal/RevealViewController.h"

namespace tarnwick {

// The container of the menu and the screens. While the menu is open the screen beside it is dimmed
// and takes no input but a tap, which closes the menu, as Escape does. Nothing that slides can be
// pressed, nor can a screen in its first moments. The keyboard follows to what is in front. Main
// thread.
class MenuContainer : public RevealViewController, public RevealViewControllerDelegate {
    Q_OBJECT

public:
    MenuContainer() : arrival_(this) {}

    void revealControllerWillMoveToPosition(Reveal& reveal, RevealPosition position) override;
    void revealControllerDidMoveToPosition(Reveal& reveal, RevealPosition position) override;
    void revealControllerAnimateToPosition(Reveal& reveal, RevealPosition position,
                                           std::vector<Change>& changes) override;
    void revealControllerPanGestureMovedToLocationProgress(Reveal& reveal, double location,
                                                           double progress) override;
    void revealControllerDidAddViewControllerForOperationAnimated(Reveal& reveal,
                                                                  ViewController* controller,
                                                                  ChildReplacement operation,
                                                                  Animated animated) override;

protected:
    void viewDidLoad() override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void makeShade();
    // Lets those take input that are in front and at rest.
    void updateInertness();
    void coverFront(bool covered);
    void coverMenu(bool covered);
    void focusMenu();

    QPointer<QQuickItem> shade_;
    Pause arrival_;
    bool isMoving_ = false;
    bool hasJustArrived_ = false;  // the screen in front
    QPointer<Stage> coveredFront_;
    std::unique_ptr<Cover> menuCover_;
    Qt::FocusReason focusReason_ = Qt::OtherFocusReason;
};

}  // namespace tarnwick
