#include "app/BusIdentity.h"

#include <sys/syscall.h>
#include <unistd.h>

#include <QDBusConnection>
#include <QThread>
#include <thread>

namespace tarnwick {

namespace {

constexpr uid_t root = 0;

#ifdef SYS_setresuid32
constexpr long setUsersOfThread = SYS_setresuid32;
#else
constexpr long setUsersOfThread = SYS_setresuid;
#endif

// The library's function would change every thread of the process.
bool becomeInThisThread(uid_t user) {
    return ::syscall(setUsersOfThread, user, user, user) == 0;
}

}  // namespace

void talkToBusesAs(uid_t starter) {
    if (::geteuid() != root || starter == root)
        return;
    // The toolkit takes the first thread that it sees for the main one.
    QThread::currentThread();
    std::thread([starter] {
        // A new thread is who its maker is, and the thread for buses is made at their first use:
        // here one is left that was never joined.
        if (becomeInThisThread(starter))
            QDBusConnection::disconnectFromBus("none");
    }).join();
}

}  // namespace tarnwick
