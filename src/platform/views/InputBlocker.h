#pragma once

#include <QQuickItem>

namespace tarnwick {

// Takes every touch, mouse and wheel event that reaches it, so that nothing below it does. Main
// thread.
class InputBlocker : public QQuickItem {
    Q_OBJECT

public:
    explicit InputBlocker(QQuickItem* parent);

protected:
    void mousePressEvent(QMouseEvent* event) override;
    void touchEvent(QTouchEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
};

}  // namespace tarnwick
