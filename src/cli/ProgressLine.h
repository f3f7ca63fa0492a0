#pragma once

#include <chrono>
#include <condition_variable>
#include <cstdint>
#include <functional>
#include <mutex>
#include <string>
#include <thread>

namespace tarnwick {

// The text of the line: the label, the item with its place among all, the share of the bytes that
// is done with its speed and the time that the rest will take, and the time since the start; cut to
// the width in columns.
struct Progress {
    std::string label;
    std::string item = {};
    std::size_t place = 0;
    std::size_t count = 0;
    std::uint64_t bytesDone = 0;
    std::uint64_t bytes = 0;  // 0 if they are not counted
};
std::string progressText(const Progress& progress, std::chrono::seconds elapsed, std::size_t width);

// One line at the bottom of a terminal, redrawn each second while something runs. Any thread; its
// own thread draws.
class ProgressLine {
public:
    // Nothing is drawn unless the descriptor is a terminal.
    explicit ProgressLine(int descriptor);
    ProgressLine(const ProgressLine&) = delete;
    ProgressLine& operator=(const ProgressLine&) = delete;
    ~ProgressLine();

    void start(const std::string& label);
    void setItem(const std::string& item, std::size_t place, std::size_t count);
    // Shown when the line is drawn next, as this may be called often.
    void setBytes(std::uint64_t done, std::uint64_t total);
    // Erases the line while other text is written; it comes back within a second unless stopped.
    void without(const std::function<void()>& writeOther);
    void stop();
    // Erases what another process that ended early left on the line.
    void eraseLeftover();

private:
    using Clock = std::chrono::steady_clock;

    void drawEachSecond(const std::stop_token& stopped);
    void draw();
    void erase();

    const int descriptor_;
    const bool enabled_;
    std::mutex mutex_;
    std::condition_variable_any wakeUp_;
    bool running_ = false;
    Progress progress_;
    Clock::time_point started_;
    std::jthread thread_;
};

}  // namespace tarnwick
