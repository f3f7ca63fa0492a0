#pragma once

#include <functional>
#include <map>
#include <string>
#include <vector>

#include "core/CommandRunner.h"
#include "core/Feedback.h"
#include "core/FileManager.h"
#include "core/ItemCatalogue.h"
#include "core/TaskQueues.h"

namespace tarnwick {

// What operations work with. All of it outlives them.
struct OperationServices {
    const ItemCatalogue& catalogue;
    CommandRunner& runner;
    const FileReader& files;
    FileWriter& changes;
    Feedback& feedback;
    TaskQueues& queues;
};

// The actions of buttons and words, by their names, such as "saveNotes". Main thread.
using NamedActions = std::map<std::string, std::function<void()>>;

// What the tasks of a screen have in common. Must outlive the tasks that it started.
class TaskOperations {
public:
    explicit TaskOperations(const OperationServices& services)
        : catalogue_(services.catalogue),
          runner_(services.runner),
          files_(services.files),
          changes_(services.changes),
          feedback_(services.feedback),
          queues_(services.queues) {}
    TaskOperations(const TaskOperations&) = delete;
    TaskOperations& operator=(const TaskOperations&) = delete;

protected:
    ~TaskOperations() = default;

    void runAll(const std::vector<std::string>& lines) {
        for (const std::string& line : lines)
            runner_.run(line);
    }
    // Returns when the HUD is gone. Background thread.
    void hideHudOnMainThread() {
        queues_.performOnMainThreadAndWait([this] { feedback_.hideHud(); });
    }

    const ItemCatalogue& catalogue_;
    CommandRunner& runner_;
    const FileReader& files_;
    FileWriter& changes_;
    Feedback& feedback_;
    TaskQueues& queues_;
};

}  // namespace tarnwick
