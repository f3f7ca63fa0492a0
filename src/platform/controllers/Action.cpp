#include "platform/controllers/Action.h"

#include "platform/motion/Attachment.h"

namespace tarnwick {

Action::Action(QQuickItem* button, std::function<void()> act)
    : QObject(button), act_(std::move(act)) {
    connect(button, SIGNAL(clicked()), this, SLOT(perform()));
}

void Action::set(QQuickItem* button, std::function<void()> act) {
    delete findAttachment<Action>(button);
    new Action(button, std::move(act));
}

}  // namespace tarnwick
