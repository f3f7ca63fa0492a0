// Recording stand-ins for the seams. They all write into one diary, so that a test sees the order
// of events.
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "core/CommandRunner.h"
#include "core/Feedback.h"
#include "core/SystemFileManager.h"
#include "core/TaskQueues.h"
#include "support/TemporaryFolder.h"

namespace tarnwick::testing {

using Entries = std::vector<std::string>;

// The started lines and the changes of files only.
Entries changesIn(const Entries& entries);
Entries alertsIn(const Entries& entries);

// "TITLE: MESSAGE [BUTTONS] #TAG"
std::string textOf(const Alert& alert);

// Lines and changes stand in it as --dry-run prints them ("run: …", "remove: …"); besides these
// there are "exists: …", "hud: …", "hide", "alert: " and its text, and the names of
// queues.
struct Diary {
    Entries entries;

    void note(const std::string& entry) { entries.push_back(entry); }
    Entries changes() const { return changesIn(entries); }
    Entries alerts() const;
};

class RecordingRunner : public CommandRunner {
public:
    explicit RecordingRunner(Diary& diary) : diary_(diary) {}
    int run(const std::string& line) override;

    // Acts a line out; nothing happens by default.
    std::function<void(const std::string&)> act = [](const std::string&) {};
    int status = 0;

private:
    Diary& diary_;
};

// The real thing below a temporary folder, which notes what it is asked for.
class RecordingFileManager : public SystemFileManager {
public:
    RecordingFileManager(Diary& diary, const TemporaryFolder& folder)
        : SystemFileManager(folder.path()), diary_(diary) {}

    bool exists(std::string_view path) const override;
    bool remove(std::string_view path) override;
    bool copy(std::string_view from, std::string_view to) override;
    bool createDirectory(std::string_view path) override;
    bool createFile(std::string_view path) override;
    bool writeText(std::string_view path, std::string_view text) override;
    std::int64_t fileSystemSize(std::string_view path) const override;
    std::int64_t fileSystemFreeSize(std::string_view path) const override;

    std::int64_t freeElsewhere = 1 << 30;  // bytes

private:
    Diary& diary_;
};

class RecordingFeedback : public Feedback {
public:
    explicit RecordingFeedback(Diary& diary) : diary_(diary) {}
    void showHud(std::string_view label) override { diary_.note("hud: " + std::string(label)); }
    void hideHud() override { diary_.note("hide"); }
    void show(const Alert& alert) override;

    Alert lastAlert;

private:
    Diary& diary_;
};

// Runs a background thread's task and a waiting hand-over in place, and keeps dispatched tasks
// until the test steps them: so a test chooses which queue is the faster one.
class SteppedQueues : public TaskQueues {
public:
    explicit SteppedQueues(Diary& diary) : diary_(diary) {}
    void runInBackground(Task task) override;
    void performOnMainThreadAndWait(Task task) override;
    void dispatchToGlobalQueue(Task task) override { global_.push_back(std::move(task)); }
    void dispatchToMainQueue(Task task) override;

    // Runs what is queued, oldest first, until nothing is left.
    void stepGlobal();
    void stepMain();

    bool backgroundWaits = false;  // as what is dispatched to the global queue
    bool mainIsFaster = false;     // a dispatched task runs before its dispatcher goes on

private:
    Diary& diary_;
    std::vector<Task> global_;
    std::vector<Task> main_;
};

}  // namespace tarnwick::testing
