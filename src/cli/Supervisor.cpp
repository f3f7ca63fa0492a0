#include "cli/Supervisor.h"

#include <sys/prctl.h>
#include <sys/wait.h>
#include <unistd.h>

#include <csignal>
#include <ctime>

namespace tarnwick {

namespace {

// How long commands that were told to end may take to tidy up, in seconds, before they are killed.
constexpr int tidyingTime = 5;

// The signals that the supervisor waits for, blocked while it lives.
class AwaitedSignals {
public:
    AwaitedSignals() {
        ::sigemptyset(&awaited_);
        for (const int signal : {SIGINT, SIGQUIT, SIGTERM, SIGTSTP, SIGCHLD})
            ::sigaddset(&awaited_, signal);
        // Whoever started us to outlive the terminal said so by ignoring the hang-up.
        struct sigaction hangUp = {};
        if (::sigaction(SIGHUP, nullptr, &hangUp) == 0 && hangUp.sa_handler != SIG_IGN)
            ::sigaddset(&awaited_, SIGHUP);
        ::sigprocmask(SIG_BLOCK, &awaited_, &before_);
    }
    AwaitedSignals(const AwaitedSignals&) = delete;
    AwaitedSignals& operator=(const AwaitedSignals&) = delete;
    ~AwaitedSignals() { restore(); }

    void restore() const { ::sigprocmask(SIG_SETMASK, &before_, nullptr); }

    int next() const { return ::sigwaitinfo(&awaited_, nullptr); }

    // Returns -1 when none came in time.
    int nextWithin(int seconds) const {
        const struct timespec limit = {seconds, 0};
        return ::sigtimedwait(&awaited_, nullptr, &limit);
    }

private:
    sigset_t awaited_ = {};
    sigset_t before_ = {};
};

[[noreturn]] void becomeWorker(const AwaitedSignals& signals, const std::function<int()>& work) {
    ::setpgid(0, 0);
    ::prctl(PR_SET_PDEATHSIG, SIGKILL);
    // A shell hands ignored signals on to what it starts in the background; commands must heed
    // theirs.
    std::signal(SIGINT, SIG_DFL);
    std::signal(SIGQUIT, SIG_DFL);
    // Output from a background group must not stop the run on terminals that are set so.
    std::signal(SIGTTOU, SIG_IGN);
    signals.restore();
    ::_exit(work());
}

void suspendWith(pid_t group) {
    ::kill(-group, SIGSTOP);
    ::raise(SIGSTOP);
    ::kill(-group, SIGCONT);
}

// Waits until no child is left, orphans of the worker included. False when the time runs out first.
bool awaitAll(const AwaitedSignals& signals) {
    for (;;) {
        const pid_t ended = ::waitpid(-1, nullptr, WNOHANG);
        if (ended < 0)
            return true;
        if (ended == 0 && signals.nextWithin(tidyingTime) < 0)
            return false;
    }
}

void endAll(const AwaitedSignals& signals, pid_t worker) {
    ::kill(worker, SIGKILL);
    for (const int signal : {SIGTERM, SIGKILL}) {
        ::kill(-worker, signal);
        ::kill(-worker, SIGCONT);
        if (awaitAll(signals))
            return;
    }
}

SupervisedRun ended(int status) {
    if (WIFEXITED(status))
        return {SupervisedRun::End::Finished, WEXITSTATUS(status)};
    return {SupervisedRun::End::Crashed};
}

SupervisedRun watch(const AwaitedSignals& signals, pid_t worker) {
    for (;;) {
        const int signal = signals.next();
        int status = 0;
        if (signal == SIGCHLD) {
            if (::waitpid(worker, &status, WNOHANG) == worker) {
                const SupervisedRun run = ended(status);
                if (run.end == SupervisedRun::End::Crashed)
                    endAll(signals, worker);
                return run;
            }
        } else if (signal == SIGTSTP) {
            suspendWith(worker);
        } else if (signal > 0) {
            endAll(signals, worker);
            return {SupervisedRun::End::Interrupted};
        }
    }
}

}  // namespace

SupervisedRun supervise(const std::function<int()>& work) {
    const AwaitedSignals signals;
    // Commands whose parent was killed become our children, so that we can wait for them too.
    ::prctl(PR_SET_CHILD_SUBREAPER, 1);
    const pid_t worker = ::fork();
    if (worker < 0)
        return {SupervisedRun::End::Crashed};
    if (worker == 0)
        becomeWorker(signals, work);
    ::setpgid(worker, worker);
    return watch(signals, worker);
}

}  // namespace tarnwick
