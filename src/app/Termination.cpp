#include "app/Termination.h"

#include <poll.h>

#include <chrono>
#include <csignal>

#include "core/Descendants.h"
#include "core/WriteAll.h"

namespace tarnwick {

namespace {

constexpr int endingSignals[] = {SIGTERM, SIGINT, SIGHUP};
constexpr char nothingToAwait = 0;
constexpr std::chrono::seconds tidyingTime(2);

int pipeOfHandler = -1;

void passOn(int signal) {
    const char number = static_cast<char>(signal);
    [[maybe_unused]] const ssize_t size = ::write(pipeOfHandler, &number, 1);
}

void handle(int signal, void (*handler)(int)) {
    struct sigaction before = {};
    // A hang-up that is ignored stays so.
    if (::sigaction(signal, nullptr, &before) == 0 && before.sa_handler != SIG_IGN)
        std::signal(signal, handler);
}

void tellAll(int signal) {
    for (const pid_t process : descendants())
        ::kill(process, signal);
}

void endCommands() {
    const auto limit = std::chrono::steady_clock::now() + tidyingTime;
    tellAll(SIGTERM);
    while (!descendants().empty() && std::chrono::steady_clock::now() < limit)
        std::this_thread::sleep_for(std::chrono::milliseconds(10));
    tellAll(SIGKILL);
}

}  // namespace

Termination::Termination(SystemCommandRunner& runner) : runner_(runner) {
    if (!pipe_.isOpen())
        return;
    pipeOfHandler = pipe_.writing();
    thread_ = std::jthread([this] { await(); });
    for (const int signal : endingSignals)
        handle(signal, passOn);
}

Termination::~Termination() {
    if (!thread_.joinable())
        return;
    for (const int signal : endingSignals)
        handle(signal, SIG_DFL);
    passOn(nothingToAwait);
}

void Termination::await() {
    struct pollfd awaited = {.fd = pipe_.reading(), .events = POLLIN, .revents = 0};
    char number = nothingToAwait;
    while (::poll(&awaited, 1, -1) < 0 || ::read(pipe_.reading(), &number, 1) != 1) {
    }
    if (number != nothingToAwait)
        endCommandsAndProgram(number);
}

void Termination::endCommandsAndProgram(int signal) {
    runner_.startNoMore();
    endCommands();
    std::signal(signal, SIG_DFL);
    ::kill(::getpid(), signal);
    for (;;)
        ::pause();
}

}  // namespace tarnwick
