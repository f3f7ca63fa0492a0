#include "platform/controllers/NavigationBar.h"

#include <QCoreApplication>

namespace tarnwick {

namespace {

class LookHolder : public QObject {
public:
    static constexpr const char* name = "navigation bar look";

    explicit LookHolder(QObject* application) : QObject(application) { setObjectName(name); }

    NavigationBarLook look;
};

}  // namespace

void BarButtonItem::press() const {
    if (action_)
        action_();
}

NavigationBarLook& NavigationBarLook::ofApplication() {
    QObject* application = QCoreApplication::instance();
    auto* holder = static_cast<LookHolder*>(
        application->findChild<QObject*>(LookHolder::name, Qt::FindDirectChildrenOnly));
    if (holder == nullptr)
        holder = new LookHolder(application);
    return holder->look;
}

}  // namespace tarnwick
