#include "app/StartersIdentity.h"

#include <sys/syscall.h>
#include <unistd.h>

#include <cstdlib>

namespace tarnwick {

namespace {

constexpr uid_t root = 0;

#ifdef SYS_setresuid32
constexpr long setUsersOfThread = SYS_setresuid32;
#else
constexpr long setUsersOfThread = SYS_setresuid;
#endif

// The library's function would change every thread of the process. Real and effective user stay
// the same, as the toolkit does not start otherwise.
bool become(uid_t user) {
    return ::syscall(setUsersOfThread, user, user, root) == 0;
}

}  // namespace

StartersIdentity::StartersIdentity(uid_t starter) {
    if (::geteuid() == root && starter != root)
        static_cast<void>(become(starter));
}

StartersIdentity::~StartersIdentity() {
    uid_t real = root;
    uid_t effective = root;
    uid_t saved = root;
    ::getresuid(&real, &effective, &saved);
    // Without its rights the program would fail at everything that it is asked to do.
    if (saved == root && effective != root && !become(root))
        std::abort();
}

}  // namespace tarnwick
