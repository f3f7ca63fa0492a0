#pragma once

#include <QObject>
#include <QPointer>
#include <QString>

#include "platform/controllers/ViewController.h"

namespace tarnwick {

// A controller's weak reference to an element of its view, by object name. Declared as a field of
// the controller and connected when the view is loaded, which fails if the scene has no such
// element.
class OutletBase {
public:
    OutletBase(ViewController* owner, const char* name);
    virtual ~OutletBase() = default;
    OutletBase(const OutletBase&) = delete;
    OutletBase& operator=(const OutletBase&) = delete;

    QString name() const { return QString::fromLatin1(name_); }
    // Looks up the element in the view; false if there is none of this name and class.
    virtual bool connectIn(const QObject& view) = 0;

private:
    const char* name_;
};

template <class Element>
class Outlet : public OutletBase {
public:
    using OutletBase::OutletBase;

    bool connectIn(const QObject& view) override {
        element_ = view.findChild<Element*>(name());
        return !element_.isNull();
    }

    Element* get() const { return element_; }
    Element* operator->() const { return element_; }

private:
    QPointer<Element> element_;
};

}  // namespace tarnwick
