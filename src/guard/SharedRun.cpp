#include "guard/SharedRun.h"

#include <algorithm>
#include <utility>

#include "core/JoinedText.h"

namespace tarnwick {

SharedRun::SharedRun(Guard& guard, std::string lockPath)
    : guard_(guard), lockPath_(std::move(lockPath)) {}

SharedRun::Ticket SharedRun::enter(const std::string& what) {
    const std::scoped_lock guarded(mutex_);
    if (tasks_.empty() && !begin())
        return nullptr;
    tasks_.push_back(what);
    record();
    // The value does not matter: a ticket is the end of its life.
    return {this, [this, what](const void*) { leave(what); }};
}

LeftRun SharedRun::takeLeft() {
    const std::scoped_lock guarded(mutex_);
    if (!tasks_.empty() || !hasLeftRun(lockPath_))
        return {};
    const RunLock lock(lockPath_);
    if (lock.state() != RunLock::State::Held)
        return {};
    LeftRun left = lock.left();
    lock.clear();
    return left;
}

bool SharedRun::begin() {
    lock_.emplace(lockPath_);
    if (lock_->state() == RunLock::State::TakenByAnother) {
        lock_.reset();
        return false;
    }
    guard_.clearUp();
    return true;
}

void SharedRun::leave(const std::string& what) {
    const std::scoped_lock guarded(mutex_);
    tasks_.erase(std::ranges::find(tasks_, what));
    record();
    if (tasks_.empty())
        lock_.reset();
}

void SharedRun::record() const {
    if (lock_->state() != RunLock::State::Held)
        return;
    if (tasks_.empty())
        lock_->clear();
    else
        lock_->record(joined(tasks_, ", "));
}

}  // namespace tarnwick
