#include "support/Diary.h"

#include <algorithm>
#include <iterator>
#include <utility>

namespace tarnwick::testing {

namespace {

template <class Wanted>
Entries those(const Entries& entries, Wanted wanted) {
    Entries chosen;
    std::copy_if(entries.begin(), entries.end(), std::back_inserter(chosen), wanted);
    return chosen;
}

void runAll(std::vector<TaskQueues::Task>& tasks) {
    while (!tasks.empty()) {
        const TaskQueues::Task task = std::move(tasks.front());
        tasks.erase(tasks.begin());
        task();
    }
}

}  // namespace

Entries changesIn(const Entries& entries) {
    return those(entries, [](const std::string& entry) {
        for (const char* start : {"run: ", "remove: ", "copy: ", "create f", "write: "})
            if (entry.starts_with(start))
                return true;
        return false;
    });
}

Entries Diary::alerts() const {
    return those(entries, [](const std::string& entry) { return entry.starts_with("alert: "); });
}

int RecordingRunner::run(const std::string& line) {
    diary_.note("run: " + line);
    act(line);
    return status;
}

bool RecordingFileManager::exists(std::string_view path) const {
    diary_.note("exists: " + std::string(path));
    return texts.contains(path) || unreadable.contains(path);
}

std::optional<std::vector<std::string>> RecordingFileManager::list(std::string_view) const {
    return listing;
}

std::optional<std::string> RecordingFileManager::readText(std::string_view path) const {
    const auto found = texts.find(path);
    return found == texts.end() ? std::nullopt : std::optional(found->second);
}

std::uint64_t RecordingFileManager::fileSize(std::string_view path) const {
    return readText(path).value_or("").size();
}

std::optional<std::time_t> RecordingFileManager::changeTime(std::string_view) const {
    return std::nullopt;
}

std::int64_t RecordingFileManager::fileSystemSize(std::string_view path) const {
    return path == "/private/var" ? total : 0;
}

std::int64_t RecordingFileManager::fileSystemFreeSize(std::string_view path) const {
    return path == "/private/var" ? free : 0;
}

bool RecordingFileManager::remove(std::string_view path) {
    diary_.note("remove: " + std::string(path));
    const std::string below = std::string(path) + "/";
    return std::erase_if(texts, [&](const auto& entry) {
               return entry.first == path || entry.first.starts_with(below);
           }) > 0;
}

bool RecordingFileManager::copy(std::string_view from, std::string_view to) {
    diary_.note("copy: " + std::string(from) + " to " + std::string(to));
    const auto source = texts.find(from);
    if (source == texts.end() || texts.contains(to))
        return false;
    texts.emplace(to, source->second);
    return true;
}

bool RecordingFileManager::createDirectory(std::string_view path) {
    diary_.note("create folder: " + std::string(path));
    texts.emplace(path, "");
    return true;
}

bool RecordingFileManager::createFile(std::string_view path) {
    diary_.note("create file: " + std::string(path));
    texts[std::string(path)] = "";
    return true;
}

bool RecordingFileManager::writeText(std::string_view path, std::string_view text) {
    diary_.note("write: " + std::string(path));
    texts[std::string(path)] = text;
    return true;
}

void RecordingFeedback::showHud(std::string_view label) {
    diary_.note("hud: " + std::string(label));
}

void RecordingFeedback::hideHud() {
    diary_.note("hide");
}

void RecordingFeedback::show(const Alert& alert) {
    lastAlert = alert;
    std::string buttons = alert.cancelButtonTitle;
    for (const std::string& button : alert.otherButtonTitles)
        buttons += ", " + button;
    diary_.note("alert: " + alert.title + ": " + alert.message + " [" + buttons + "] #" +
                std::to_string(alert.tag));
}

void SteppedQueues::runInBackground(Task task) {
    diary_.note("background thread");
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
        main.push_back(std::move(task));
}

void SteppedQueues::stepGlobal() {
    runAll(global);
}

void SteppedQueues::stepMain() {
    runAll(main);
}

}  // namespace tarnwick::testing
