#include "cli/Supervisor.h"

#include <sys/prctl.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cerrno>
#include <chrono>
#include <csignal>
#include <ctime>
#include <optional>
#include <set>
#include <utility>

#include "core/Descendants.h"

namespace tarnwick {

namespace {

using Clock = std::chrono::steady_clock;

// How long a second Ctrl-C may take.
constexpr std::chrono::seconds secondThoughts(3);
constexpr struct timespec shortWhile = {0, 20'000'000};  // nanoseconds

// What tells commands to end, and how long they may take to tidy up.
struct Request {
    int signal;
    std::chrono::seconds patience;
    bool reachesOtherSessions = true;
};
constexpr Request atOnce[] = {{SIGTERM, std::chrono::seconds(5)},
                              {SIGKILL, std::chrono::seconds(5)}};
// apt-get gives dpkg a session of its own, and after an interrupt waits for it to finish.
constexpr Request gently[] = {{SIGINT, std::chrono::minutes(10), false},
                              {SIGTERM, std::chrono::seconds(30)},
                              {SIGKILL, std::chrono::seconds(5)}};

constexpr int endingSignals[] = {SIGINT, SIGTERM, SIGQUIT, SIGUSR1, SIGUSR2, SIGALRM, SIGXCPU};

// The signals that the supervisor waits for. They stay blocked until they are restored.
class AwaitedSignals {
public:
    AwaitedSignals() {
        ::sigemptyset(&awaited_);
        for (const int signal : endingSignals)
            ::sigaddset(&awaited_, signal);
        ::sigaddset(&awaited_, SIGTSTP);
        ::sigaddset(&awaited_, SIGCHLD);
        // An ignored hang-up means that the run is to outlive its terminal.
        struct sigaction hangUp = {};
        if (::sigaction(SIGHUP, nullptr, &hangUp) == 0 && hangUp.sa_handler != SIG_IGN)
            ::sigaddset(&awaited_, SIGHUP);
        ::sigprocmask(SIG_BLOCK, &awaited_, &before_);
    }

    void restore() const { ::sigprocmask(SIG_SETMASK, &before_, nullptr); }

    int next() const { return ::sigwaitinfo(&awaited_, nullptr); }
    void passShortWhile() const { ::sigtimedwait(&awaited_, nullptr, &shortWhile); }

private:
    sigset_t awaited_ = {};
    sigset_t before_ = {};
};

// The supervisor was killed: nothing may go on without it.
void endWithCommands(int) {
    std::signal(SIGTERM, SIG_DFL);
    ::kill(0, SIGTERM);
}

[[noreturn]] void becomeWorker(const AwaitedSignals& signals, pid_t supervisor,
                               const std::function<int()>& work) {
    // Without a terminal, a command that would ask for a password fails instead.
    ::setsid();
    std::signal(SIGTERM, endWithCommands);
    ::prctl(PR_SET_PDEATHSIG, SIGTERM);
    if (::getppid() != supervisor)
        ::_exit(1);
    // A shell makes background jobs ignore these; commands must not.
    std::signal(SIGINT, SIG_DFL);
    std::signal(SIGQUIT, SIG_DFL);
    signals.restore();
    ::_exit(work());
}

// In an orphaned group, which no shell could continue, the kernel ignores the SIGTSTP.
void suspendWith(pid_t group) {
    sigset_t suspension = {};
    ::sigemptyset(&suspension);
    ::sigaddset(&suspension, SIGTSTP);
    ::kill(-group, SIGSTOP);
    ::raise(SIGTSTP);
    ::sigprocmask(SIG_UNBLOCK, &suspension, nullptr);
    ::sigprocmask(SIG_BLOCK, &suspension, nullptr);
    ::kill(-group, SIGCONT);
}

// Reaps what has ended. What loses its parent becomes our child, so without children there are no
// descendants either.
bool allHaveEnded() {
    pid_t ended = 0;
    while ((ended = ::waitpid(-1, nullptr, WNOHANG)) > 0) {
    }
    return ended < 0 && errno == ECHILD;
}

// Asks each process once, those that appear later too. Returns whether all have ended.
bool endAllBy(const Request& request, const AwaitedSignals& signals, pid_t session) {
    const auto limit = Clock::now() + request.patience;
    std::set<pid_t> asked;
    while (!allHaveEnded()) {
        if (Clock::now() > limit)
            return false;
        for (const pid_t process : descendants()) {
            const bool isReached = request.reachesOtherSessions || ::getsid(process) == session;
            if (!isReached || !asked.insert(process).second)
                continue;
            ::kill(process, request.signal);
            ::kill(process, SIGCONT);
        }
        signals.passShortWhile();
    }
    return true;
}

// The worker first, so that it starts nothing more; then what it started.
template <std::size_t count>
void endAll(const AwaitedSignals& signals, pid_t worker, const Request (&requests)[count]) {
    ::kill(worker, SIGKILL);
    for (const Request& request : requests)
        if (endAllBy(request, signals, worker))
            return;
}

// Follows the work to its end, or to a signal that ends it.
class Watch {
public:
    Watch(const AwaitedSignals& signals, pid_t worker, const SupervisedWork& supervised)
        : signals_(signals), worker_(worker), supervised_(supervised) {}

    SupervisedRun untilTheEnd() {
        std::optional<SupervisedRun::End> end;
        while (!end)
            end = after(signals_.next());
        return {*end, status_, wasHungUp_};
    }

private:
    std::optional<SupervisedRun::End> after(int signal) {
        if (signal == SIGTSTP)
            suspendWith(worker_);
        else if (signal == SIGHUP && supervised_.warn)
            wasHungUp_ = true;
        else if (signal == SIGINT && !isConfirmed())
            supervised_.warn();
        else if (signal > 0 && signal != SIGCHLD)
            return SupervisedRun::End::Interrupted;
        else
            return endOfWork();
        return std::nullopt;
    }

    bool isConfirmed() {
        const auto previous = std::exchange(lastInterrupt_, Clock::now());
        return !supervised_.warn || (previous && *lastInterrupt_ - *previous <= secondThoughts);
    }

    std::optional<SupervisedRun::End> endOfWork() {
        int status = 0;
        if (::waitpid(worker_, &status, WNOHANG) != worker_)
            return std::nullopt;
        if (!WIFEXITED(status))
            return SupervisedRun::End::Crashed;
        status_ = WEXITSTATUS(status);
        return SupervisedRun::End::Finished;
    }

    const AwaitedSignals& signals_;
    const pid_t worker_;
    const SupervisedWork& supervised_;
    int status_ = 0;
    bool wasHungUp_ = false;
    std::optional<Clock::time_point> lastInterrupt_;
};

}  // namespace

SupervisedRun supervise(const SupervisedWork& supervised) {
    const AwaitedSignals signals;
    // Commands whose parent was killed become our children, so that we can wait for them too.
    ::prctl(PR_SET_CHILD_SUBREAPER, 1);
    const pid_t supervisor = ::getpid();
    const pid_t worker = ::fork();
    if (worker < 0)
        return {SupervisedRun::End::Crashed};
    if (worker == 0)
        becomeWorker(signals, supervisor, supervised.work);
    const SupervisedRun run = Watch(signals, worker, supervised).untilTheEnd();
    if (run.end != SupervisedRun::End::Finished) {
        if (supervised.endsGently)
            endAll(signals, worker, gently);
        else
            endAll(signals, worker, atOnce);
        supervised.tidyUp();
    }
    // An impatient second signal must not cut the end of an interrupted run short.
    if (run.end != SupervisedRun::End::Interrupted)
        signals.restore();
    return run;
}

}  // namespace tarnwick
