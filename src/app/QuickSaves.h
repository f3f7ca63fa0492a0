#pragma once

#include "screens/ScreenServices.h"

namespace tarnwick {

// The saves of the quick actions: each runs in the background behind a notice without buttons and
// always reports success. Main thread, but for the work. The services outlive it and its saves.
class QuickSaves {
public:
    explicit QuickSaves(const ScreenServices& services) : services_(services) {}

    void saveCydia() const;
    void saveAll() const;

private:
    const ScreenServices& services_;
};

}  // namespace tarnwick
