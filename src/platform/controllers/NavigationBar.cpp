#include "platform/controllers/NavigationBar.h"

#include <QCoreApplication>
#include <utility>

#include "platform/motion/Attachment.h"

namespace tarnwick {

namespace {

class LookHolder : public QObject {
public:
    using QObject::QObject;

    NavigationBarLook look;
};

}  // namespace

void BarButtonItem::setAction(std::function<void()> action) {
    action_ = std::move(action);
    emit changed();
}

void BarButtonItem::press() const {
    if (action_)
        action_();
}

NavigationBarLook& NavigationBarLook::ofApplication() {
    return attachmentOf<LookHolder>(QCoreApplication::instance()).look;
}

}  // namespace tarnwick
