#pragma once

#include <functional>
#include <vector>

#include "core/Alert.h"
#include "platform/motion/Animation.h"
#include "platform/views/InputBlocker.h"
#include "platform/windows/Settling.h"

namespace tarnwick {

// One alert on the screen: a panel in the middle of its parent, which it fills. It takes every
// touch, mouse, wheel and key that reaches it. Keys: Tab and arrows go from button to button,
// Return, Enter and the space bar press one, Escape presses the cancel button; the others that
// scroll, and the arrows where there is nothing to choose, move a long message. Home and End go to
// the first and the last button if there is nothing to move. Main thread.
//
// An alert that has just come forward takes no press: it may have been meant for what was there
// before. Its buttons are offered to assistive technology when they can be pressed.
class AlertView : public InputBlocker {
    Q_OBJECT

public:
    AlertView(const Alert& alert, QQuickItem* parent);
    ~AlertView() override;

    const Alert& alert() const { return alert_; }
    QQuickItem* panel() const { return panel_; }
    // As they stand on the screen: from the top down, from left to right.
    std::vector<QQuickItem*> buttons() const;

    // To be called when it is the topmost alert from now on; see takeFocus().
    void comeForward(Qt::FocusReason reason);
    // Gives the keyboard to the button that had it last, at first to the cancel button. The reason
    // tells whether the focus is to be seen.
    void takeFocus(Qt::FocusReason reason);

    // Fades and zooms in.
    void appear();
    // Fades out if animated; takes no input any more. The task is done once that is over.
    void leave(Animated animated, std::function<void()> task);

signals:
    void buttonPressed(int buttonIndex);
    // Something else got the keyboard while this was visible and not leaving.
    void focusLost();

protected:
    bool event(QEvent* event) override;
    void itemChange(ItemChange change, const ItemChangeData& data) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    void fillParent();
    void addButton(const std::string& caption, int index);
    double hairline() const;
    bool hasCancelButton() const { return !alert_.cancelButtonTitle.empty(); }
    QQuickItem* firstFocus() const;
    void focus(QQuickItem* item, Qt::FocusReason reason);
    void moveFocus(int step, Qt::FocusReason reason);
    bool moveFocusBy(int key);
    void moveFocusToEnd(int key);
    void cancelByKey(const QKeyEvent& event);
    void scrollToFocus();

    const Alert alert_;
    QQuickItem* panel_;
    Settling settling_;
    Qt::FocusReason focusReason_ = Qt::OtherFocusReason;  // of the last move of the focus
};

// How long an alert takes to come and to go, in seconds.
inline constexpr double alertAppearDuration = 0.25;
inline constexpr double alertLeaveDuration = 0.2;

}  // namespace tarnwick
