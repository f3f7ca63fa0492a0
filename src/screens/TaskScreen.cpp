#include "screens/TaskScreen.h"

#include <utility>

#include "platform/motion/Frames.h"
#include "ui/reveal/RevealSegues.h"

namespace tarnwick {

// Keeps the screen for as long as there is something to do for it.
class TaskScreen::Queues : public TaskQueues {
public:
    Queues(TaskScreen& screen, TaskQueues& queues) : screen_(screen), queues_(queues) {}

    void runInBackground(Task task) override { queues_.runInBackground(keeping(task)); }
    void performOnMainThreadAndWait(Task task) override {
        queues_.performOnMainThreadAndWait(std::move(task));
    }
    void dispatchToGlobalQueue(Task task) override { queues_.dispatchToGlobalQueue(keeping(task)); }
    void dispatchToMainQueue(Task task) override { queues_.dispatchToMainQueue(keeping(task)); }

private:
    Task keeping(const Task& task) const {
        return [screen = screen_.shared_from_this(), task] { task(); };
    }

    TaskScreen& screen_;
    TaskQueues& queues_;
};

TaskScreen::TaskScreen(const ScreenServices& services)
    : services_(services), queues_(std::make_unique<Queues>(*this, services.queues)) {}

TaskScreen::~TaskScreen() = default;

void TaskScreen::showHud(std::string_view label) {
    hud_ = ProgressHUD::showHUDAddedTo(view(), Animated::Yes);
    hud_->setMode(ProgressHUD::ModeIndeterminate);
    hud_->setLabelText(QString::fromUtf8(label.data(), static_cast<qsizetype>(label.size())));
    hud_->show(Animated::Yes);
}

void TaskScreen::hideHud() {
    if (hud_)
        hud_->hide(Animated::Yes);
}

void TaskScreen::show(const Alert& alert) {
    const auto self = shared_from_this();
    {
        const std::lock_guard lock(guard_);
        heldByAlerts_.push_back(self);
    }
    services_.alerts.show(alert, std::shared_ptr<AlertDelegate>(self, this));
}

void TaskScreen::alertDidDismissWithButtonIndex(const Alert& alert, int index) {
    static_cast<void>(alert);
    static_cast<void>(index);
    std::shared_ptr<ViewController> released;  // once the lock is
    const std::lock_guard lock(guard_);
    released = std::move(heldByAlerts_.back());
    heldByAlerts_.pop_back();
}

void TaskScreen::pinContentView() {
    pinToWidth(contentView.get(), view());
}

void TaskScreen::wireMenu() {
    wireToRevealContainer(*this, *sidebarButton.get());
}

}  // namespace tarnwick
