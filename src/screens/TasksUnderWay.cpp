#include "screens/TasksUnderWay.h"

#include <algorithm>
#include <utility>

#include "platform/threads/MainThread.h"

namespace tarnwick {

class TasksUnderWay::Part {
public:
    Part(TasksUnderWay& tasks, int number, Ticket held)
        : number_(number), tasks_(tasks), held_(std::move(held)) {}
    Part(const Part&) = delete;
    Part& operator=(const Part&) = delete;
    ~Part() {
        held_.reset();
        performLaterOnMainThread(&tasks_,
                                 [&tasks = tasks_, number = number_] { tasks.end(number); });
    }

    int number() const { return number_; }

private:
    const int number_;
    TasksUnderWay& tasks_;
    Ticket held_;
};

TasksUnderWay::Ticket TasksUnderWay::begin(const std::string& screen, Ticket held) {
    tasks_.push_back({.number = ++lastNumber_, .screen = QString::fromStdString(screen)});
    performLaterOnMainThread(this, [this] { emit changed(); });
    return std::make_shared<Part>(*this, lastNumber_, std::move(held));
}

void TasksUnderWay::setHudLabel(const Ticket& ticket, const QString& label) {
    const auto* part = static_cast<const Part*>(ticket.get());
    for (Task& task : tasks_)
        if (part != nullptr && task.number == part->number())
            task.hudLabel = label;
}

bool TasksUnderWay::isAnyOf(const QString& screen) const {
    return std::ranges::count(tasks_, screen, &Task::screen) > 0;
}

QString TasksUnderWay::hudLabelOf(const QString& screen) const {
    QString label;
    for (const Task& task : tasks_)
        if (task.screen == screen && !task.hudLabel.isEmpty())
            label = task.hudLabel;
    return label;
}

void TasksUnderWay::end(int number) {
    std::erase_if(tasks_, [number](const Task& task) { return task.number == number; });
    emit changed();
    emit ended();
}

}  // namespace tarnwick
