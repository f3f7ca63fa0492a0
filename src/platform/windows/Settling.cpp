#include "platform/windows/Settling.h"

#include <utility>

namespace tarnwick {

void Settling::start(const QList<QQuickItem*>& items, std::function<void()> whenSettled) {
    cover_ = std::make_unique<Cover>(items);
    pause_.start(settlingDuration, [this, whenSettled = std::move(whenSettled)] {
        cover_.reset();
        whenSettled();
    });
}

}  // namespace tarnwick
