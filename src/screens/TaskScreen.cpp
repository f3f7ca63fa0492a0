#include "screens/TaskScreen.h"

#include <utility>

namespace tarnwick {

// Keeps the screen alive, and the run held, while it has tasks.
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
        return [screen = screen_.shared_from_this(), ticket = TaskGate::currentTicket(), task] {
            const TaskGate::Part part(ticket);
            task();
        };
    }

    TaskScreen& screen_;
    TaskQueues& queues_;
};

TaskScreen::TaskScreen(const ScreenServices& services)
    : services_(services), queues_(std::make_unique<Queues>(*this, services.queues)) {}

TaskScreen::~TaskScreen() = default;

void TaskScreen::viewDidLoad() {
    FrontScreen::viewDidLoad();
    connect(&services_.gate.tasks(), &TasksUnderWay::changed, this, &TaskScreen::endResumedHud);
    if (!services_.gate.tasks().hudLabelOf(scene()).isEmpty())
        resumedHud_ = newHud(services_.gate.tasks().hudLabelOf(scene()));
}

void TaskScreen::endResumedHud() {
    if (resumedHud_ && services_.gate.tasks().hudLabelOf(scene()).isEmpty())
        resumedHud_->hide(Animated::Yes);
}

ProgressHUD* TaskScreen::newHud(const QString& label) {
    ProgressHUD* hud = ProgressHUD::showHUDAddedTo(view(), Animated::Yes);
    hud->setMode(ProgressHUD::ModeIndeterminate);
    hud->setLabelText(label);
    hud->show(Animated::Yes);
    return hud;
}

void TaskScreen::showHud(std::string_view label) {
    const auto text = QString::fromUtf8(label.data(), static_cast<qsizetype>(label.size()));
    hud_ = newHud(text);
    services_.gate.tasks().setHudLabel(TaskGate::currentTicket(), text);
}

void TaskScreen::hideHud() {
    if (hud_)
        hud_->hide(Animated::Yes);
}

void TaskScreen::perform(const std::string& what, std::function<void()> task) {
    const auto self = shared_from_this();
    services_.gate.perform({.screen = scene().toStdString(),
                            .what = what,
                            .task = [self, task = std::move(task)] { task(); },
                            .showWaiting =
                                [this] {
                                    showHud("Waiting...");
                                    hud_->setDetailsLabelText("for another run of Tarnwick to end");
                                },
                            .hideWaiting = [this] { hideHud(); }});
}

void TaskScreen::show(const Alert& alert) {
    const auto self = shared_from_this();
    {
        const std::lock_guard lock(guard_);
        ++openAlerts_;
        self_ = self;
    }
    services_.alerts.show(alert, std::shared_ptr<AlertDelegate>(self, this));
}

void TaskScreen::alertDidDismissWithButtonIndex(const Alert&, int) {
    std::shared_ptr<ViewController> released;  // after the lock, which is the screen's
    const std::lock_guard lock(guard_);
    if (--openAlerts_ == 0)
        released = std::move(self_);
}

OperationServices TaskScreen::operationServices() {
    return {.catalogue = services_.catalogue,
            .runner = services_.runner,
            .files = services_.files,
            .changes = services_.files,
            .feedback = *this,
            .queues = *queues_};
}

}  // namespace tarnwick
