#pragma once

#include <QObject>

namespace tarnwick {

// Data that goes with an object without being part of its class: a direct child, at most one of
// each class.

// Null if the owner has none.
template <class Attachment>
Attachment* findAttachment(const QObject* owner) {
    for (QObject* child : owner->children())
        if (auto* attachment = dynamic_cast<Attachment*>(child))
            return attachment;
    return nullptr;
}

// Created on the first call.
template <class Attachment, class Owner>
Attachment& attachmentOf(Owner* owner) {
    auto* known = findAttachment<Attachment>(owner);
    return known != nullptr ? *known : *new Attachment(owner);
}

}  // namespace tarnwick
