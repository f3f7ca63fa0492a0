#include "platform/controllers/Action.h"

namespace tarnwick {

namespace {

constexpr const char* name = "action";

}  // namespace

Action::Action(QQuickItem* button, std::function<void()> act)
    : QObject(button), act_(std::move(act)) {
    setObjectName(name);
    connect(button, SIGNAL(clicked()), this, SLOT(perform()));
}

void Action::set(QQuickItem* button, std::function<void()> act) {
    delete button->findChild<Action*>(name, Qt::FindDirectChildrenOnly);
    new Action(button, std::move(act));
}

}  // namespace tarnwick
