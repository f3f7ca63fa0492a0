#include "cli/ProgressLine.h"

#include <sys/ioctl.h>
#include <unistd.h>

#include <algorithm>
#include <cstdlib>
#include <cstring>

#include "core/WriteAll.h"
#include "options/SizeFormatters.h"

namespace tarnwick {

namespace {

constexpr std::size_t usualWidth = 80;

bool isDrawable(int descriptor) {
    const char* terminal = std::getenv("TERM");
    return ::isatty(descriptor) == 1 && terminal != nullptr && std::strcmp(terminal, "dumb") != 0;
}

std::size_t widthOf(int descriptor) {
    struct winsize size = {};
    if (::ioctl(descriptor, TIOCGWINSZ, &size) != 0 || size.ws_col == 0)
        return usualWidth;
    return size.ws_col;
}

std::string minutesAndSeconds(std::chrono::seconds elapsed) {
    const auto seconds = elapsed.count() % 60;
    return std::to_string(elapsed.count() / 60) + (seconds < 10 ? ":0" : ":") +
           std::to_string(seconds);
}

std::string shareText(const Progress& progress, std::chrono::seconds elapsed) {
    std::string text = " " + std::to_string(100 * progress.bytesDone / progress.bytes) + " %";
    const auto seconds = static_cast<std::uint64_t>(elapsed.count());
    if (seconds == 0 || progress.bytesDone < seconds)
        return text;
    const std::uint64_t speed = progress.bytesDone / seconds;
    const std::uint64_t left = (progress.bytes - progress.bytesDone) / speed;
    return text + ", " + memoryFormatterDouble(static_cast<double>(speed)) + "/s, " +
           minutesAndSeconds(std::chrono::seconds(left)) + " left,";
}

}  // namespace

std::string progressText(const Progress& progress, std::chrono::seconds elapsed,
                         std::size_t width) {
    std::string text = progress.label;
    if (!progress.item.empty())
        text += " " + progress.item + " (" + std::to_string(progress.place) + "/" +
                std::to_string(progress.count) + ")";
    if (progress.bytes > 0)
        text += shareText(progress, elapsed);
    text += " " + minutesAndSeconds(elapsed);
    return text.substr(0, std::min(text.size(), width > 0 ? width - 1 : 0));
}

ProgressLine::ProgressLine(int descriptor)
    : descriptor_(descriptor), enabled_(isDrawable(descriptor)) {}

ProgressLine::~ProgressLine() {
    stop();
}

void ProgressLine::start(const std::string& label) {
    if (!enabled_)
        return;
    const std::scoped_lock lock(mutex_);
    progress_ = {.label = label};
    started_ = Clock::now();
    running_ = true;
    draw();
    if (!thread_.joinable())
        thread_ = std::jthread([this](const std::stop_token& stopped) { drawEachSecond(stopped); });
}

void ProgressLine::setItem(const std::string& item, std::size_t place, std::size_t count) {
    const std::scoped_lock lock(mutex_);
    if (!running_)
        return;
    progress_.item = item;
    progress_.place = place;
    progress_.count = count;
    draw();
}

void ProgressLine::setBytes(std::uint64_t done, std::uint64_t total) {
    const std::scoped_lock lock(mutex_);
    progress_.bytesDone = done;
    progress_.bytes = total;
}

void ProgressLine::without(const std::function<void()>& writeOther) {
    const std::scoped_lock lock(mutex_);
    if (running_)
        erase();
    writeOther();
}

void ProgressLine::stop() {
    const std::scoped_lock lock(mutex_);
    if (running_)
        erase();
    running_ = false;
}

void ProgressLine::eraseLeftover() {
    if (enabled_)
        erase();
}

void ProgressLine::drawEachSecond(const std::stop_token& stopped) {
    std::unique_lock lock(mutex_);
    while (!stopped.stop_requested()) {
        wakeUp_.wait_for(lock, stopped, std::chrono::seconds(1), [] { return false; });
        if (running_ && !stopped.stop_requested())
            draw();
    }
}

void ProgressLine::draw() {
    const auto elapsed = std::chrono::duration_cast<std::chrono::seconds>(Clock::now() - started_);
    writeAll(descriptor_, "\r\033[K" + progressText(progress_, elapsed, widthOf(descriptor_)));
}

void ProgressLine::erase() {
    writeAll(descriptor_, "\r\033[K");
}

}  // namespace tarnwick
