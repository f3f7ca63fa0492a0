#pragma once

#include <QPointer>
#include <memory>
#include <mutex>
#include <vector>

#include "core/Feedback.h"
#include "platform/controllers/NavigationBar.h"
#include "platform/controllers/Outlet.h"
#include "platform/controllers/ViewController.h"
#include "screens/ScreenServices.h"
#include "ui/hud/ProgressHUD.h"

namespace tarnwick {

// A screen that runs tasks: it shows their HUD and their alerts, and hears which buttons are
// pressed. It lives until its tasks are done and its alerts answered, even if another screen is in
// front by then.
class TaskScreen : public ViewController, public Feedback, public AlertDelegate {
    Q_OBJECT

public:
    explicit TaskScreen(const ScreenServices& services);
    ~TaskScreen() override;

    Outlet<BarButtonItem> sidebarButton{this, "sidebarButton"};
    Outlet<QQuickItem> contentView{this, "contentView"};

    void showHud(std::string_view label) override;
    void hideHud() override;
    void show(const Alert& alert) override;
    void alertDidDismissWithButtonIndex(const Alert& alert, int index) override;

protected:
    const ScreenServices& services() const { return services_; }
    // The queues for this screen's operations.
    TaskQueues& queues() { return *queues_; }
    // The last steps of every screen's viewDidLoad().
    void pinContentView();
    void wireMenu();

private:
    class Queues;

    const ScreenServices& services_;
    const std::unique_ptr<TaskQueues> queues_;
    QPointer<ProgressHUD> hud_;
    std::mutex guard_;                                           // of what follows
    std::vector<std::shared_ptr<ViewController>> heldByAlerts_;  // this screen, for each
};

}  // namespace tarnwick
