#pragma once

#include <QObject>
#include <QPointer>

namespace tarnwick {

// Another object that is told of something, not kept alive: whoever implements the Delegate class
// is a QObject too, and is no longer told once it is gone. Main thread.
template <class Delegate>
class WeakDelegate {
public:
    void set(Delegate* delegate) {
        delegate_ = delegate;
        object_ = dynamic_cast<QObject*>(delegate);
    }

    // Nothing if there is none, or none any more.
    Delegate* get() const { return object_ ? delegate_ : nullptr; }

private:
    Delegate* delegate_ = nullptr;
    QPointer<QObject> object_;
};

}  // namespace tarnwick
