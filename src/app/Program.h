#pragma once

#include <unistd.h>

#include <QString>
#include <memory>

#include "app/AppDelegate.h"
#include "app/DeferredClose.h"
#include "app/Termination.h"
#include "core/ItemCatalogue.h"
#include "core/SystemCommandRunner.h"
#include "core/SystemFileManager.h"
#include "core/SystemLog.h"
#include "guard/Guard.h"
#include "guard/SharedRun.h"
#include "mail/ComposerMailer.h"
#include "platform/desktop/DesktopSettings.h"
#include "platform/threads/PlatformQueues.h"
#include "platform/windows/Window.h"

namespace tarnwick {

// The program and everything it works with; nothing is visible until it is launched. The destructor
// waits for running tasks. Main thread.
class Program {
public:
    Program() = default;
    ~Program();
    Program(const Program&) = delete;
    Program& operator=(const Program&) = delete;

    bool isLaunched() const { return lifeCycle_ != nullptr; }
    // The first call launches the program; later ones bring it to the front, or perform the quick
    // action.
    void activate();
    void activateAction(const QString& name);

private:
    void launch(const LaunchOptions& options);
    void tellOfLeftRun();

    DesktopSettings settings_;  // asks as early as possible
    const ItemCatalogue catalogue_;
    CommandOutput commandOutput_{STDERR_FILENO};
    SystemCommandRunner runner_{&commandOutput_};
    const Termination termination_{runner_};
    SystemFileManager files_;
    SystemLog log_;
    Guard guard_{catalogue_, runner_, files_,
                 [this](const std::string& fault) { log_.write(fault); }};
    SharedRun run_{guard_, runLockPath};
    Window window_;
    TaskGate gate_{run_};
    // It only refers to the others. Before the queues, as tasks use it until these are gone.
    const ScreenServices services_ = {.catalogue = catalogue_,
                                      .runner = guard_.runner(),
                                      .files = guard_.files(),
                                      .queues = queues_,
                                      .gate = gate_,
                                      .alerts = window_.alerts(),
                                      .mailer = mailer_,
                                      .log = log_};
    PlatformQueues queues_;
    ComposerMailer mailer_{queues_};
    AppDelegate delegate_{window_, services_};
    std::unique_ptr<LifeCycle> lifeCycle_;
    std::unique_ptr<DeferredClose> deferredClose_;
};

}  // namespace tarnwick
