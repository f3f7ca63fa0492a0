#pragma once

#include <QString>
#include <memory>
#include <optional>

#include "app/AppDelegate.h"
#include "core/ItemCatalogue.h"
#include "core/SystemCommandRunner.h"
#include "core/SystemFileManager.h"
#include "core/SystemLog.h"
#include "mail/ComposerMailer.h"
#include "platform/threads/PlatformQueues.h"
#include "platform/windows/Window.h"

namespace tarnwick {

// The program with all that it works with: nothing of it is seen until it is launched. The
// destructor waits for tasks that run. Main thread.
class Program {
public:
    Program() = default;
    ~Program();
    Program(const Program&) = delete;
    Program& operator=(const Program&) = delete;

    bool isLaunched() const { return lifeCycle_ != nullptr; }
    // The first of these launches the program; later ones bring it to the front, or do the quick
    // action.
    void activate();
    void activateAction(const QString& name);

private:
    void launch(const LaunchOptions& options);

    const ItemCatalogue catalogue_;
    SystemCommandRunner runner_;
    SystemFileManager files_;
    SystemLog log_;
    Window window_;
    // It only refers to others, and tasks use it until their queues have gone.
    const ScreenServices services_ = {catalogue_,       runner_, files_, queues_,
                                      window_.alerts(), mailer_, log_};
    PlatformQueues queues_;
    ComposerMailer mailer_{queues_};
    const std::shared_ptr<AppDelegate> delegate_ =
        std::make_shared<AppDelegate>(window_, services_);
    std::unique_ptr<LifeCycle> lifeCycle_;
};

}  // namespace tarnwick
