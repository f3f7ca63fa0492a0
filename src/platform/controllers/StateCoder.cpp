#include "platform/controllers/StateCoder.h"

#include "platform/controllers/Storyboard.h"

namespace tarnwick {

void StateCoder::encodeController(const QString& key, const ViewController* controller) {
    encode(key, controller != nullptr ? controller->restorationIdentifier : QString());
}

QStringList StateCoder::keys() const {
    QStringList keys;
    for (const auto& [key, value] : values_)
        keys.append(key);
    return keys;
}

QVariant StateCoder::decode(const QString& key) const {
    for (const auto& [written, value] : values_)
        if (written == key)
            return value;
    return {};
}

std::shared_ptr<ViewController> StateCoder::decodeController(const QString& key) const {
    const QString identifier = decode(key).toString();
    if (!storyboard_ || !storyboard_->hasScene(identifier))
        return nullptr;
    auto controller = storyboard_->instantiateViewController(identifier);
    controller->restorationIdentifier = identifier;
    return controller;
}

}  // namespace tarnwick
