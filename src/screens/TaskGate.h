#pragma once

#include <QObject>
#include <deque>
#include <functional>
#include <string>

#include "guard/SharedRun.h"
#include "platform/motion/Pause.h"
#include "screens/TasksUnderWay.h"

namespace tarnwick {

// Lets the window's tasks run once no other program's run is under way. The tasks of the window do
// not wait for each other. Main thread, unless said otherwise.
class TaskGate : public QObject {
    Q_OBJECT

public:
    using Task = std::function<void()>;

    // The run outlives the gate, and the gate the tickets of its tasks.
    explicit TaskGate(SharedRun& run);

    // What is done, and what the person sees until it can begin.
    struct Entry {
        std::string screen;  // the scene of the screen whose task it is
        std::string what;
        Task task;
        Task showWaiting;
        Task hideWaiting;
    };
    // Does it at once, or later on this thread. Dropped if the gate goes before.
    void perform(Entry entry);

    TasksUnderWay& tasks() { return tasks_; }

    // Of the task that this thread is doing; null without one. Any thread.
    static TasksUnderWay::Ticket currentTicket();
    // While it exists, this thread is doing a part of the task. Any thread.
    class Part {
    public:
        explicit Part(TasksUnderWay::Ticket ticket);
        Part(const Part&) = delete;
        Part& operator=(const Part&) = delete;
        ~Part();

    private:
        TasksUnderWay::Ticket before_;
    };

private:
    bool begin(const Entry& entry, const Task& task);
    void tryWaiting();

    SharedRun& run_;
    TasksUnderWay tasks_;
    std::deque<Entry> waiting_;
    Pause pause_;
};

}  // namespace tarnwick
