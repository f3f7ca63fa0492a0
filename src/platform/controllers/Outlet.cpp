#include "platform/controllers/Outlet.h"

namespace tarnwick {

OutletBase::OutletBase(ViewController* owner, const char* name) : name_(name) {
    owner->outlets_.push_back(this);
}

}  // namespace tarnwick
