#include "cli/Supervisor.h"

#include <sys/prctl.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cerrno>
#include <chrono>
#include <csignal>
#include <ctime>

namespace tarnwick {

namespace {

// How long commands may take to tidy up after SIGTERM before they are killed.
constexpr std::chrono::seconds tidyingTime(5);
constexpr struct timespec shortWhile = {0, 20'000'000};  // nanoseconds

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

// Reaps what has ended; true once nothing of the group is left.
bool isGone(pid_t group) {
    while (::waitpid(-1, nullptr, WNOHANG) > 0) {
    }
    return ::kill(-group, 0) != 0 && errno == ESRCH;
}

bool becomesGone(const AwaitedSignals& signals, pid_t group) {
    const auto limit = std::chrono::steady_clock::now() + tidyingTime;
    while (!isGone(group)) {
        if (std::chrono::steady_clock::now() > limit)
            return false;
        signals.passShortWhile();
    }
    return true;
}

// The worker first, so that it starts nothing more; then its commands.
void endAll(const AwaitedSignals& signals, pid_t worker) {
    ::kill(worker, SIGKILL);
    for (const int signal : {SIGTERM, SIGKILL}) {
        ::kill(-worker, signal);
        ::kill(-worker, SIGCONT);
        if (becomesGone(signals, worker))
            return;
    }
}

// Waits for the end of the work or for a signal to end it.
SupervisedRun watch(const AwaitedSignals& signals, pid_t worker) {
    for (;;) {
        const int signal = signals.next();
        int status = 0;
        if (signal == SIGTSTP)
            suspendWith(worker);
        else if (signal > 0 && signal != SIGCHLD)
            return {SupervisedRun::End::Interrupted};
        else if (::waitpid(worker, &status, WNOHANG) == worker)
            return WIFEXITED(status)
                       ? SupervisedRun{SupervisedRun::End::Finished, WEXITSTATUS(status)}
                       : SupervisedRun{SupervisedRun::End::Crashed};
    }
}

}  // namespace

SupervisedRun supervise(const std::function<int()>& work, const std::function<void()>& tidyUp) {
    const AwaitedSignals signals;
    // Commands whose parent was killed become our children, so that we can wait for them too.
    ::prctl(PR_SET_CHILD_SUBREAPER, 1);
    const pid_t supervisor = ::getpid();
    const pid_t worker = ::fork();
    if (worker < 0)
        return {SupervisedRun::End::Crashed};
    if (worker == 0)
        becomeWorker(signals, supervisor, work);
    const SupervisedRun run = watch(signals, worker);
    if (run.end != SupervisedRun::End::Finished) {
        endAll(signals, worker);
        tidyUp();
    }
    // An impatient second signal must not cut the end of an interrupted run short.
    if (run.end != SupervisedRun::End::Interrupted)
        signals.restore();
    return run;
}

}  // namespace tarnwick
