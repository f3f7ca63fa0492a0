#pragma once

#include <QString>
#include <QStringList>
#include <QVariant>
#include <memory>
#include <utility>
#include <vector>

#include "platform/controllers/ViewController.h"

namespace tarnwick {

// Where controllers save and restore their state: values under keys, in the order in which they
// were written. A controller is stored as its restoration identifier, which is also the identifier
// of its scene.
class StateCoder {
public:
    explicit StateCoder(std::shared_ptr<const Storyboard> storyboard = {})
        : storyboard_(std::move(storyboard)) {}

    // The storyboard that creates restored controllers; may be null.
    const std::shared_ptr<const Storyboard>& storyboard() const { return storyboard_; }

    void encode(const QString& key, const QVariant& value) { values_.emplace_back(key, value); }
    void encodeController(const QString& key, const ViewController* controller);
    QStringList keys() const;

    // Invalid if the key was not written.
    QVariant decode(const QString& key) const;
    // A new controller from the storyboard; null without a storyboard, or if there is no such key
    // or scene.
    std::shared_ptr<ViewController> decodeController(const QString& key) const;

private:
    std::shared_ptr<const Storyboard> storyboard_;
    std::vector<std::pair<QString, QVariant>> values_;
};

}  // namespace tarnwick
