#include <gtest/gtest.h>

#include "platform/threads/PlatformQueues.h"
#include "support/Events.h"
#include "support/Operations.h"
#include "support/ProgramWindow.h"
#include "ui/hud/ProgressHUD.h"

namespace tarnwick::testing {
namespace {

// With the program's threads.
class ThreadedScreensTest : public ProgramWindow {
protected:
    ThreadedScreensTest() : ProgramWindow(std::make_unique<PlatformQueues>()) {}

    // The text of the alert that comes, which is then answered.
    std::string awaitAlert(int index) {
        while (window.alerts().numberShown() == 0)
            QCoreApplication::processEvents(QEventLoop::AllEvents, 10);
        return answerAlert(index);
    }
};

TEST_F(ThreadedScreensTest, ATaskCoversItsScreenAndTellsItsResult) {
    diary.entries.clear();
    press("accountsButton");
    EXPECT_NE(ProgressHUD::HUDForView(screen().view()), nullptr);
    const Entries events = literalEvents().at("save accounts, nothing zipped");
    EXPECT_EQ("alert: " + awaitAlert(0), events.back());
    EXPECT_EQ(ProgressHUD::HUDForView(screen().view()), nullptr);
    EXPECT_EQ(diary.changes(), changesIn(events));
}

TEST_F(ThreadedScreensTest, AnAnswerFindsItsScreenWhenAnotherOneIsInFront) {
    choose("restore");
    folder.put(library + "Accounts.zip", "");
    press("accountsButton");
    const std::weak_ptr<ViewController> restore = screen().weak_from_this();
    choose("help");
    EXPECT_FALSE(restore.expired());
    EXPECT_TRUE(awaitAlert(1).starts_with("Accounts Restoration"));
    EXPECT_EQ(diary.entries.back(), "run: /sbin/reboot");
    finishDeletions();
    EXPECT_TRUE(restore.expired());
}

}  // namespace
}  // namespace tarnwick::testing
