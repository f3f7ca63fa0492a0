#pragma once

#include <QPointer>
#include <functional>
#include <memory>
#include <mutex>
#include <string>

#include "core/TaskOperations.h"
#include "platform/windows/AlertPresenter.h"
#include "screens/FrontScreen.h"
#include "screens/ScreenServices.h"
#include "ui/hud/ProgressHUD.h"

namespace tarnwick {

// A screen that runs tasks: it shows their HUD and alerts, and learns which buttons are pressed. It
// lives until its tasks are done and its alerts answered, even if another screen is in front by
// then.
class TaskScreen : public FrontScreen, public Feedback, public AlertDelegate {
    Q_OBJECT

public:
    explicit TaskScreen(const ScreenServices& services);
    ~TaskScreen() override;

    void showHud(std::string_view label) override;
    void hideHud() override;
    void show(const Alert& alert) override;
    void alertDidDismissWithButtonIndex(const Alert& alert, int index) override;

protected:
    void viewDidLoad() override;
    // Does it as soon as no other program's run is under way; until then a HUD says what it waits
    // for.
    void perform(const std::string& what, std::function<void()> task);
    // For the operations of this screen.
    OperationServices operationServices();

    const ScreenServices& services() const { return services_; }

private:
    class Queues;

    ProgressHUD* newHud(const QString& label);
    void endResumedHud();

    const ScreenServices& services_;
    const std::unique_ptr<TaskQueues> queues_;
    QPointer<ProgressHUD> hud_;
    QPointer<ProgressHUD> resumedHud_;  // of a task that another view of this screen began
    std::mutex guard_;                  // of what follows
    int openAlerts_ = 0;
    std::shared_ptr<ViewController> self_;  // while an alert is open
};

}  // namespace tarnwick
