#pragma once

#include <QObject>
#include <QPointer>

namespace tarnwick {

// A delegate that is notified but not kept alive. An implementation of the Delegate class is
// a QObject too, and is no longer notified once it is deleted. Main thread.
template <class Delegate>
class WeakDelegate {
public:
    void set(Delegate* delegate) {
        delegate_ = delegate;
        object_ = dynamic_cast<QObject*>(delegate);
    }

    // Null if none is set or it has been deleted.
    Delegate* get() const { return object_ ? delegate_ : nullptr; }

private:
    Delegate* delegate_ = nullptr;
    QPointer<QObject> object_;
};

}  // namespace tarnwick
