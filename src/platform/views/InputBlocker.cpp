#include "platform/views/InputBlocker.h"

namespace tarnwick {

InputBlocker::InputBlocker(QQuickItem* parent) : QQuickItem(parent) {
    setAcceptedMouseButtons(Qt::AllButtons);
    setAcceptTouchEvents(true);
    setAcceptHoverEvents(true);
}

void InputBlocker::mousePressEvent(QMouseEvent* event) {
    event->accept();
}

void InputBlocker::touchEvent(QTouchEvent* event) {
    event->accept();
}

void InputBlocker::wheelEvent(QWheelEvent* event) {
    event->accept();
}

}  // namespace tarnwick
