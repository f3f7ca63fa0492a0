#include "cli/Supervisor.h"

#include <gtest/gtest.h>
#include <signal.h>
#include <sys/wait.h>
#include <unistd.h>

#include <chrono>
#include <csignal>
#include <cstdlib>
#include <fstream>
#include <thread>

#include "support/TemporaryFolder.h"

namespace tarnwick {
namespace {

using testing::TemporaryFolder;

// Waits for what must come; gives up only long after it should have.
template <class Condition>
bool comesTrue(Condition condition) {
    const auto limit = std::chrono::steady_clock::now() + std::chrono::seconds(20);
    while (std::chrono::steady_clock::now() < limit) {
        if (condition())
            return true;
        std::this_thread::sleep_for(std::chrono::milliseconds(5));
    }
    return false;
}

// A process that this one has inherited is taken note of once it has ended.
bool lives(const std::string& pid) {
    ::waitpid(std::stoi(pid), nullptr, WNOHANG);
    return ::kill(std::stoi(pid), 0) == 0;
}

// Runs the work supervised in a process of its own, sends that process the signal once the work has
// put its commands' numbers into the file "ready", and returns how the supervision ended.
// A second signal comes while it tidies up.
int endAfter(int signal, const std::function<int()>& work, const TemporaryFolder& folder) {
    const pid_t supervisor = ::fork();
    if (supervisor == 0) {
        const auto tidyUp = [] { ::raise(SIGTERM); };
        ::_exit(static_cast<int>(supervise({.work = work, .tidyUp = tidyUp}).end));
    }
    EXPECT_TRUE(comesTrue([&] { return folder.content("ready").ends_with("\n"); }));
    ::kill(supervisor, signal);
    int status = 0;
    EXPECT_EQ(::waitpid(supervisor, &status, 0), supervisor);
    return WIFEXITED(status) ? WEXITSTATUS(status) : -WTERMSIG(status);
}

constexpr int interrupted = static_cast<int>(SupervisedRun::End::Interrupted);

TEST(Supervisor, HandsTheStatusOnAndReportsWorkThatWasKilled) {
    bool tidy = false;
    const auto work = [] { return ::getsid(0) == ::getpid() ? 5 : 1; };
    const SupervisedRun run = supervise({.work = work, .tidyUp = [&tidy] { tidy = true; }});
    EXPECT_EQ(run.end, SupervisedRun::End::Finished);
    EXPECT_EQ(run.status, 5) << "it has a session of its own, without a terminal";
    EXPECT_FALSE(tidy);
    EXPECT_EQ(
        supervise({.work = [] { return ::raise(SIGKILL); }, .tidyUp = [&tidy] { tidy = true; }})
            .end,
        SupervisedRun::End::Crashed);
    EXPECT_TRUE(tidy);
}

TEST(Supervisor, AnInterruptEndsTheCommandsAndStartsNoMore) {
    for (const int signal : {SIGINT, SIGTERM, SIGHUP, SIGQUIT}) {
        const TemporaryFolder folder;
        const std::string go = "cd " + folder.path() + "; ";
        const auto work = [&] {
            static_cast<void>(!std::system((go + "sleep 1000 & echo $! $$ > ready; wait").c_str()));
            static_cast<void>(!std::system((go + "touch second").c_str()));
            return 0;
        };
        EXPECT_EQ(endAfter(signal, work, folder), interrupted) << signal;
        std::ifstream numbers(folder.path() + "/ready");
        for (std::string pid; numbers >> pid;)
            EXPECT_FALSE(lives(pid)) << signal;
        EXPECT_EQ(folder.content("second"), "(none)") << signal;
    }
}

TEST(Supervisor, KilledItselfItLeavesNoCommand) {
    const TemporaryFolder folder;
    const auto work = [&folder] {
        return std::system(("cd " + folder.path() + "; echo $$ > ready; exec sleep 1000").c_str());
    };
    EXPECT_EQ(endAfter(SIGKILL, work, folder), -SIGKILL);
    EXPECT_TRUE(comesTrue([&] { return !lives(folder.content("ready")); }));
}

TEST(Supervisor, KillsACommandThatWillNotEnd) {
    const TemporaryFolder folder;
    const auto work = [&folder] {
        const std::string line =
            "cd " + folder.path() +
            " && trap '' TERM INT && echo $$ > ready && while :; do sleep 0.05; done";
        return std::system(line.c_str());
    };
    EXPECT_EQ(endAfter(SIGTERM, work, folder), interrupted);
    std::string pid = folder.content("ready");
    EXPECT_FALSE(lives(pid));
}

}  // namespace
}  // namespace tarnwick
