#include "app/BusIdentity.h"

#include <linux/filter.h>
#include <linux/seccomp.h>
#include <sys/prctl.h>
#include <sys/syscall.h>
#include <unistd.h>

#include <QDBusConnection>
#include <QThread>
#include <cerrno>
#include <cstddef>
#include <iterator>
#include <thread>

namespace tarnwick {

namespace {

constexpr uid_t root = 0;

#ifdef SYS_setresuid32
constexpr long setUsersOfThread = SYS_setresuid32;
#else
constexpr long setUsersOfThread = SYS_setresuid;
#endif

// A system call, as the library's function would change every thread of the process.
bool becomeInThisThread(uid_t user) {
    return ::syscall(setUsersOfThread, user, user, user) == 0;
}

// The user's bus announces the addresses of other buses, and such an address may name a program to
// start. The threads that this one starts inherit the filter.
bool forbidProgramsInThisThread() {
    sock_filter rules[] = {
        BPF_STMT(BPF_LD | BPF_W | BPF_ABS, offsetof(seccomp_data, nr)),
        BPF_JUMP(BPF_JMP | BPF_JEQ | BPF_K, SYS_execve, 1, 0),
        BPF_JUMP(BPF_JMP | BPF_JEQ | BPF_K, SYS_execveat, 0, 1),
        BPF_STMT(BPF_RET | BPF_K, SECCOMP_RET_ERRNO | EACCES),
        BPF_STMT(BPF_RET | BPF_K, SECCOMP_RET_ALLOW),
    };
    const sock_fprog filter = {.len = std::size(rules), .filter = rules};
    return ::prctl(PR_SET_NO_NEW_PRIVS, 1, 0, 0, 0) == 0 &&
           ::prctl(PR_SET_SECCOMP, SECCOMP_MODE_FILTER, &filter) == 0;
}

}  // namespace

void talkToBusesAs(uid_t starter) {
    if (::geteuid() != root || starter == root)
        return;
    // The toolkit considers the first thread that it sees the main one.
    QThread::currentThread();
    std::thread([starter] {
        // A thread inherits its creator's identity, and the thread for buses is created at their
        // first use: here, leaving a bus that was never joined.
        if (forbidProgramsInThisThread() && becomeInThisThread(starter))
            QDBusConnection::disconnectFromBus("none");
        else
            qputenv("DBUS_SESSION_BUS_ADDRESS", "disabled:");
    }).join();
}

}  // namespace tarnwick
