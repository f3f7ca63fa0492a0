#pragma once

#include "core/CommandRunner.h"
#include "platform/LifeCycle.h"

namespace tarnwick {

// What the program does at the turns of its life.
class AppDelegate : public ApplicationDelegate {
public:
    AppDelegate(QWindow& window, CommandRunner& runner) : window_(window), runner_(runner) {}

    bool applicationDidFinishLaunching() override;
    // Ends the program: it never stays suspended with its rights.
    void applicationDidEnterBackground() override;

private:
    QWindow& window_;
    CommandRunner& runner_;
};

}  // namespace tarnwick
