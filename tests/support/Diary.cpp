#include "support/Diary.h"

#include <algorithm>
#include <iterator>
#include <utility>

namespace tarnwick::testing {

namespace {

Entries thoseThatStartWith(const Entries& entries, const std::vector<std::string>& starts) {
    Entries chosen;
    std::copy_if(entries.begin(), entries.end(), std::back_inserter(chosen),
                 [&starts](const std::string& entry) {
                     return std::any_of(starts.begin(), starts.end(), [&entry](const auto& start) {
                         return entry.starts_with(start);
                     });
                 });
    return chosen;
}

void runAll(std::vector<TaskQueues::Task>& tasks) {
    for (auto queued = std::exchange(tasks, {}); !queued.empty(); queued = std::exchange(tasks, {}))
        for (const auto& task : queued)
            task();
}

}  // namespace

Entries changesIn(const Entries& entries) {
    return thoseThatStartWith(entries, {"run: ", "remove: ", "copy: ", "create f", "write: "});
}

std::string textOf(const Alert& alert) {
    std::string buttons = alert.cancelButtonTitle;
    for (const std::string& button : alert.otherButtonTitles)
        buttons += ", " + button;
    return alert.title + ": " + alert.message + " [" + buttons + "] #" + std::to_string(alert.tag);
}

Entries alertsIn(const Entries& entries) {
    return thoseThatStartWith(entries, {"alert: "});
}

Entries Diary::alerts() const {
    return alertsIn(entries);
}

int RecordingRunner::run(const std::string& line) {
    diary_.note("run: " + line);
    act(line);
    return status;
}

bool RecordingFileManager::exists(std::string_view path) const {
    diary_.note("exists: " + std::string(path));
    return SystemFileManager::exists(path);
}

bool RecordingFileManager::remove(std::string_view path) {
    diary_.note("remove: " + std::string(path));
    return SystemFileManager::remove(path);
}

bool RecordingFileManager::copy(std::string_view from, std::string_view to) {
    diary_.note("copy: " + std::string(from) + " to " + std::string(to));
    return SystemFileManager::copy(from, to);
}

bool RecordingFileManager::createDirectory(std::string_view path) {
    diary_.note("create folder: " + std::string(path));
    return SystemFileManager::createDirectory(path);
}

bool RecordingFileManager::createFile(std::string_view path) {
    diary_.note("create file: " + std::string(path));
    return SystemFileManager::createFile(path);
}

bool RecordingFileManager::writeText(std::string_view path, std::string_view text) {
    diary_.note("write: " + std::string(path));
    return SystemFileManager::writeText(path, text);
}

std::int64_t RecordingFileManager::fileSystemSize(std::string_view path) const {
    return path == "/private/var" ? 68719476736 : 0;
}

std::int64_t RecordingFileManager::fileSystemFreeSize(std::string_view path) const {
    return path == "/private/var" ? 13421772800 : freeElsewhere;
}

void RecordingFeedback::show(const Alert& alert) {
    lastAlert = alert;
    diary_.note("alert: " + textOf(alert));
}

void SteppedQueues::runInBackground(Task task) {
    diary_.note("background thread");
    if (backgroundWaits)
        global_.push_back(std::move(task));
    else
        task();
}

void SteppedQueues::performOnMainThreadAndWait(Task task) {
    diary_.note("main thread, waiting");
    task();
}

void SteppedQueues::dispatchToMainQueue(Task task) {
    if (mainIsFaster)
        task();
    else
        main_.push_back(std::move(task));
}

void SteppedQueues::stepGlobal() {
    runAll(global_);
}

void SteppedQueues::stepMain() {
    runAll(main_);
}

}  // namespace tarnwick::testing
