#pragma once

#include <array>
#include <mutex>
#include <optional>
#include <string>
#include <string_view>
#include <thread>

#include "core/Pipe.h"

namespace tarnwick {

// What started commands print. They write into pipes that this process always drains, so that a
// reader that goes away never stops a command half-way.
class CommandOutput {
public:
    // What is printed is passed on to the descriptor, as long as it takes it; nobody sees it if the
    // descriptor is below 0.
    explicit CommandOutput(int shownOn);
    CommandOutput(const CommandOutput&) = delete;
    CommandOutput& operator=(const CommandOutput&) = delete;
    // Standard output and error lead again where they led before.
    ~CommandOutput();

    // Leads standard output and error of this process, which commands inherit, into the pipes. Only
    // the first call counts. To be called after a fork, as the thread that drains is not inherited.
    // Without free descriptors the streams stay as they are. Any thread.
    void start();
    // Takes in what has been printed so far. Any thread.
    void takeIn();
    // Returns the last line taken in since the last call, from standard error, else from standard
    // output, where some tools write their errors; empty if there was none. What is far indented
    // belongs to the line before. Any thread.
    std::string takeLastLine();

private:
    struct Stream {
        int number;
        std::optional<Pipe> pipe = {};
        int before = -1;
        std::string lastLine = {};
        bool lineIsComplete = true;
        std::size_t indent = 0;  // of the line that begins
    };

    static bool redirect(Stream& stream);
    void leadBack();
    void drain(const std::stop_token& stopped);
    static std::string readFrom(const Stream& stream);
    static void beginLine(Stream& stream);
    static void remember(Stream& stream, std::string_view text);

    std::once_flag started_;
    std::mutex guard_;  // of what follows
    int shownOn_;
    std::array<Stream, 2> streams_;
    std::optional<Pipe> wakeUp_;
    std::jthread thread_;
};

}  // namespace tarnwick
