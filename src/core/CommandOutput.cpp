#include "core/CommandOutput.h"

#include <poll.h>

#include <algorithm>
#include <utility>

#include "core/WriteAll.h"

namespace tarnwick {

namespace {

constexpr std::size_t longestLine = 500;  // bytes

}  // namespace

CommandOutput::CommandOutput(int shownOn)
    : shownOn_(shownOn), streams_{{{STDOUT_FILENO}, {STDERR_FILENO}}} {}

CommandOutput::~CommandOutput() {
    leadBack();
    if (thread_.joinable()) {
        thread_.request_stop();
        writeAll(wakeUp_->writing(), "x");
        thread_.join();
        takeIn();
    }
    for (const Stream& stream : streams_)
        if (stream.before >= 0)
            ::close(stream.before);
}

void CommandOutput::leadBack() {
    for (const Stream& stream : streams_)
        if (stream.before >= 0)
            ::dup2(stream.before, stream.number);
}

void CommandOutput::start() {
    std::call_once(started_, [this] {
        wakeUp_.emplace();
        if (!wakeUp_->isOpen() || !std::ranges::all_of(streams_, redirect)) {
            leadBack();
            return;
        }
        // It may be one of those that have been redirected.
        for (const Stream& stream : streams_)
            if (shownOn_ == stream.number)
                shownOn_ = stream.before;
        thread_ = std::jthread([this](const std::stop_token& stopped) { drain(stopped); });
    });
}

bool CommandOutput::redirect(Stream& stream) {
    stream.pipe.emplace();
    const int before = ::fcntl(stream.number, F_DUPFD_CLOEXEC, 0);
    if (!stream.pipe->isOpen() || before < 0)
        return false;
    stream.before = before;
    return ::dup2(stream.pipe->writing(), stream.number) >= 0;
}

std::string CommandOutput::takeLastLine() {
    const std::scoped_lock lock(guard_);
    const std::string printed = std::exchange(streams_.front().lastLine, {});
    const std::string complained = std::exchange(streams_.back().lastLine, {});
    return complained.empty() ? printed : complained;
}

void CommandOutput::drain(const std::stop_token& stopped) {
    std::array<struct pollfd, 3> awaited = {};
    for (std::size_t index = 0; index < streams_.size(); ++index)
        awaited[index] = {.fd = streams_[index].pipe->reading(), .events = POLLIN, .revents = 0};
    awaited.back() = {.fd = wakeUp_->reading(), .events = POLLIN, .revents = 0};
    while (!stopped.stop_requested())
        if (::poll(awaited.data(), awaited.size(), -1) > 0)
            takeIn();
}

void CommandOutput::takeIn() {
    const std::scoped_lock lock(guard_);
    for (Stream& stream : streams_) {
        const std::string text = readFrom(stream);
        remember(stream, text);
        if (shownOn_ >= 0 && !writeAll(shownOn_, text))
            shownOn_ = -1;
    }
}

std::string CommandOutput::readFrom(const Stream& stream) {
    char buffer[65536];  // as much as a pipe holds
    const ssize_t count = stream.pipe ? ::read(stream.pipe->reading(), buffer, sizeof buffer) : 0;
    return {buffer, static_cast<std::size_t>(std::max<ssize_t>(count, 0))};
}

void CommandOutput::beginLine(Stream& stream) {
    constexpr std::size_t farIndented = 4;
    if (stream.indent >= farIndented && !stream.lastLine.empty())
        stream.lastLine += ' ';
    else
        stream.lastLine.clear();
}

void CommandOutput::remember(Stream& stream, std::string_view text) {
    for (const char character : text) {
        if (character == '\n' || character == '\r') {
            stream.lineIsComplete = true;
            stream.indent = 0;
        } else if (stream.lineIsComplete && character == ' ') {
            ++stream.indent;
        } else {
            if (std::exchange(stream.lineIsComplete, false))
                beginLine(stream);
            if (stream.lastLine.size() < longestLine)
                stream.lastLine += character;
        }
    }
}

}  // namespace tarnwick
