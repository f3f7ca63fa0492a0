#pragma once

#include <functional>
#include <memory>

#include "screens/ScreenServices.h"

namespace tarnwick {

// The saves of the quick actions: each runs in the background behind a notice without buttons and
// always reports success; it waits while another program's run is under way. Main thread, but for
// the work. The services outlive it and its saves.
class QuickSaves {
public:
    explicit QuickSaves(const ScreenServices& services) : services_(services) {}

    void saveCydia() const;
    void saveAll() const;

private:
    class Notice;
    using Work = std::function<void(const std::shared_ptr<Notice>& notice)>;

    void perform(const char* what, const Work& work) const;

    const ScreenServices& services_;
};

}  // namespace tarnwick
