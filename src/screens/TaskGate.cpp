#include "screens/TaskGate.h"

#include <utility>

namespace tarnwick {

namespace {

constexpr double timeBetweenTries = 0.2;  // seconds

thread_local SharedRun::Ticket ticketOfThread;

}  // namespace

TaskGate::Part::Part(SharedRun::Ticket ticket)
    : before_(std::exchange(ticketOfThread, std::move(ticket))) {}

TaskGate::Part::~Part() {
    ticketOfThread = std::move(before_);
}

SharedRun::Ticket TaskGate::currentTicket() {
    return ticketOfThread;
}

TaskGate::TaskGate(SharedRun& run) : run_(run), pause_(this) {}

void TaskGate::perform(Entry entry) {
    if (begin(entry))
        return;
    entry.showWaiting();
    waiting_.push_back(std::move(entry));
    pause_.start(timeBetweenTries, [this] { tryWaiting(); });
}

bool TaskGate::begin(const Entry& entry) {
    auto ticket = run_.enter(entry.what);
    if (!ticket)
        return false;
    const Part part(std::move(ticket));
    entry.task();
    return true;
}

void TaskGate::tryWaiting() {
    while (!waiting_.empty()) {
        const Entry entry = waiting_.front();
        const auto task = [&entry] {
            entry.hideWaiting();
            entry.task();
        };
        if (!begin({.what = entry.what, .task = task})) {
            pause_.start(timeBetweenTries, [this] { tryWaiting(); });
            return;
        }
        waiting_.pop_front();
    }
}

}  // namespace tarnwick
