#include <gtest/gtest.h>
#include <sys/resource.h>

#include <QCoreApplication>
#include <QQuickWindow>
#include <thread>

#include "platform/threads/MainThread.h"
#include "platform/threads/PlatformQueues.h"
#include "platform/views/Stage.h"
#include "platform/windows/AlertPresenter.h"
#include "platform/windows/AlertView.h"
#include "support/SteppedClock.h"
#include "ui/hud/BarProgressView.h"
#include "ui/hud/ProgressHUD.h"

namespace tarnwick::testing {
namespace {

constexpr int threadCount = 8;

// Runs the work once on each thread, with the thread's number; the main thread serves nothing
// meanwhile.
void onManyThreads(const std::function<void(int)>& work) {
    std::vector<std::jthread> threads;
    for (int number = 0; number < threadCount; ++number)
        threads.emplace_back(work, number);
}

// A window without frames, which Qt draws on threads of its own.
class ManyThreads : public ::testing::Test {
protected:
    ManyThreads() { window.contentItem()->setSize({375, 667}); }

    SteppedClock clock;
    QQuickWindow window;
};

TEST_F(ManyThreads, ShowAlertsThatAllAppearInEachThreadsOrder) {
    constexpr int alertCount = 5;  // of each thread
    Stage stage(window.contentItem());
    AlertPresenter presenter(stage, *window.contentItem());
    onManyThreads([&presenter](int number) {
        for (int turn = 0; turn < alertCount; ++turn)
            presenter.show({.tag = number * alertCount + turn});
    });
    EXPECT_EQ(presenter.numberShown(), 0);
    presenter.show({.title = "last"});
    EXPECT_EQ(presenter.top()->alert().title, "last");
    emit presenter.top()->buttonPressed(0);
    std::vector<int> next(threadCount, alertCount);
    while (AlertView* top = presenter.top()) {
        const int tag = top->alert().tag;
        EXPECT_EQ(tag % alertCount, --next[static_cast<std::size_t>(tag / alertCount)]);
        emit top->buttonPressed(0);
    }
    EXPECT_EQ(next, std::vector<int>(threadCount, 0));
}

TEST_F(ManyThreads, ChangeOneHud) {
    ProgressHUD* hud = ProgressHUD::showHUDAddedTo(window.contentItem(), Animated::No);
    onManyThreads([hud](int number) {
        for (int turn = 0; turn < 50; ++turn) {
            hud->setLabelText(QString::number(number));
            hud->setProgress(turn / 50.0);
            hud->setMode(static_cast<ProgressHUD::Mode>((number + turn) % 6));
            hud->setMargin(number);
            hud->setOpacity(turn / 50.0);
            hud->setCompletionBlock([] {});
            hud->setDelegate(nullptr);
            EXPECT_EQ(hud->labelText().size(), 1);
            EXPECT_GE(hud->margin(), 0);
        }
        hud->setMode(ProgressHUD::ModeBar);
        hud->setProgress(0.5);
    });
    EXPECT_EQ(qobject_cast<BarProgressView*>(hud->indicator()), nullptr) << "not on its thread";
    QCoreApplication::processEvents();
    ASSERT_NE(qobject_cast<BarProgressView*>(hud->indicator()), nullptr);
    EXPECT_EQ(qobject_cast<BarProgressView*>(hud->indicator())->progress(), 0.5);
}

TEST_F(ManyThreads, HandChangesOverToAHudThatGoesMeanwhile) {
    std::vector<std::jthread> threads;
    QPointer<ProgressHUD> hud = new ProgressHUD(window.contentItem());
    for (int number = 0; number < threadCount; ++number)
        threads.emplace_back([hud] {
            for (int turn = 0; turn < 1000; ++turn)
                performLaterOnMainThread(hud, [](ProgressHUD& it) { it.setProgress(0.5); });
        });
    while (hud->progress() == 0)
        QCoreApplication::processEvents();
    delete hud;
    threads.clear();
    QCoreApplication::processEvents();
}

TEST_F(ManyThreads, OfAHudRunsItsMethodAndEndsIt) {
    const PlatformQueues queues;
    ProgressHUD hud(window.contentItem());
    hud.setParentItem(window.contentItem());
    std::thread::id used;
    hud.showWhileExecuting([&used] { used = std::this_thread::get_id(); }, Animated::No);
    EXPECT_TRUE(hud.isVisible());
    while (hud.taskInProgress())
        QCoreApplication::processEvents();
    EXPECT_NE(used, std::this_thread::get_id());
    EXPECT_FALSE(hud.isVisible());
}

TEST(PlatformQueues, ServeTheirThreadsToTheLastHandOver) {
    int served = 0;
    {
        PlatformQueues queues;
        for (int number = 0; number < threadCount; ++number)
            queues.runInBackground([&] {
                for (int turn = 0; turn < 20; ++turn)
                    queues.performOnMainThreadAndWait([&served] { ++served; });
                queues.dispatchToMainQueue([&served] { ++served; });
            });
        queues.performOnMainThreadAndWait([&served] { ++served; });
    }
    EXPECT_EQ(served, threadCount * 21 + 1);
}

TEST(PlatformQueues, PutTheMainThreadFirst) {
    const int usual = ::getpriority(PRIO_PROCESS, 0);
    if (::setpriority(PRIO_PROCESS, 0, usual - 1) != 0)
        GTEST_SKIP() << "the right to raise a priority is missing";
    ::setpriority(PRIO_PROCESS, 0, usual);
    int inBackground = -20;
    {
        PlatformQueues queues;
        queues.runInBackground([&] { inBackground = ::getpriority(PRIO_PROCESS, 0); });
    }
    EXPECT_EQ(::getpriority(PRIO_PROCESS, 0), -10);
    EXPECT_EQ(inBackground, usual);
    ::setpriority(PRIO_PROCESS, 0, usual);
}

}  // namespace
}  // namespace tarnwick::testing
