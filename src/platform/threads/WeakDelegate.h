#pragma once

#include <QObject>
#include <QPointer>
#include <concepts>
#include <cstddef>

namespace tarnwick {

// Something that can be held weakly as a delegate: without being a QObject too it would never be
// notified.
template <class Implementation, class Delegate>
concept NotifiableAs =
    std::derived_from<Implementation, Delegate> && std::derived_from<Implementation, QObject>;

// A delegate that is notified but not kept alive: no longer once it is deleted. Main thread.
template <class Delegate>
class WeakDelegate {
public:
    WeakDelegate() = default;
    template <NotifiableAs<Delegate> Implementation>
    WeakDelegate(Implementation* delegate) : delegate_(delegate), object_(delegate) {}
    WeakDelegate(std::nullptr_t) {}

    // Null if none is set or it has been deleted.
    Delegate* get() const { return object_ ? delegate_ : nullptr; }

private:
    Delegate* delegate_ = nullptr;
    QPointer<QObject> object_;
};

}  // namespace tarnwick
