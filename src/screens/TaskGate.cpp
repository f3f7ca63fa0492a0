#include "screens/TaskGate.h"

#include <utility>

namespace tarnwick {

namespace {

constexpr double timeBetweenTries = 0.2;  // seconds

thread_local TasksUnderWay::Ticket ticketOfThread;

}  // namespace

TaskGate::Part::Part(TasksUnderWay::Ticket ticket)
    : before_(std::exchange(ticketOfThread, std::move(ticket))) {}

TaskGate::Part::~Part() {
    ticketOfThread = std::move(before_);
}

TasksUnderWay::Ticket TaskGate::currentTicket() {
    return ticketOfThread;
}

TaskGate::TaskGate(SharedRun& run) : run_(run), pause_(this) {}

void TaskGate::perform(Entry entry) {
    if (begin(entry, entry.task))
        return;
    entry.showWaiting();
    waiting_.push_back(std::move(entry));
    pause_.start(timeBetweenTries, [this] { tryWaiting(); });
}

bool TaskGate::begin(const Entry& entry, const Task& task) {
    auto held = run_.enter(entry.what);
    if (!held)
        return false;
    const Part part(tasks_.begin(entry.screen, std::move(held)));
    task();
    return true;
}

void TaskGate::tryWaiting() {
    while (!waiting_.empty()) {
        const Entry entry = waiting_.front();
        const auto task = [&entry] {
            entry.hideWaiting();
            entry.task();
        };
        if (!begin(entry, task)) {
            pause_.start(timeBetweenTries, [this] { tryWaiting(); });
            return;
        }
        waiting_.pop_front();
    }
}

}  // namespace tarnwick
