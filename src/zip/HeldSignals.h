#pragma once

#include <csignal>

namespace tarnwick {

// While it exists, no signal interrupts this thread, nor those that it starts.
class HeldSignals {
public:
    HeldSignals() {
        sigset_t all = {};
        ::sigfillset(&all);
        ::pthread_sigmask(SIG_SETMASK, &all, &before_);
    }
    ~HeldSignals() { ::pthread_sigmask(SIG_SETMASK, &before_, nullptr); }
    HeldSignals(const HeldSignals&) = delete;
    HeldSignals& operator=(const HeldSignals&) = delete;

private:
    sigset_t before_ = {};
};

}  // namespace tarnwick
