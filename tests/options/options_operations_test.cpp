#include <gtest/gtest.h>

#include "options/OptionsOperations.h"
#include "support/Operations.h"

namespace tarnwick::testing {
namespace {

TEST(OptionsOperations, AnswersOfUnknownAlertsAndButtonsDoNothing) {
    for (int tag = -1; tag <= 9; ++tag) {
        for (const int index : {-1, 0, 12, 100}) {
            Operations on;
            Alert alert;
            alert.tag = tag;
            on.options.alertViewClickedButtonAtIndex(alert, index);
            on.queues.stepGlobal();
            EXPECT_TRUE(on.diary.entries.empty()) << tag << ", " << index;
        }
    }
}

// The background task removes the temporary archive while the main queue may not have measured it
// yet.
TEST(OptionsOperations, ATemporaryArchiveIsMeasuredOnlyIfTheMainQueueIsFaster) {
    for (const bool mainIsFaster : {true, false}) {
        Operations on;
        on.queues.mainIsFaster = mainIsFaster;
        on.runner.act = [&on](const std::string& line) {
            if (line.starts_with("zip"))
                on.folder.put("/var/tmp/Notes.zip", std::string(2048, 'x'));
        };
        on.options.backupSize();
        on.options.alertViewClickedButtonAtIndex(on.feedback.lastAlert, 7);
        on.queues.stepGlobal();
        on.queues.stepMain();
        EXPECT_EQ(on.feedback.lastAlert.message, mainIsFaster
                                                     ? "The \"Notes\" backup size is : 2.00 KB"
                                                     : "The \"Notes\" backup size is : 0.00 B");
        EXPECT_EQ(on.files.list("/var/tmp"), Entries{});
        EXPECT_EQ(on.diary.entries.back(), mainIsFaster ? "remove: /var/tmp/Notes.zip" : "hide");
    }
}

TEST(OptionsOperations, StorageFiguresArriveOnTheMainQueue) {
    Operations on;
    std::string shown;
    on.options.readStorageFigures([&shown](const std::string& total, const std::string& free) {
        shown = total + ", " + free;
    });
    on.queues.stepGlobal();
    EXPECT_EQ(shown, "");
    on.queues.stepMain();
    EXPECT_EQ(shown, "64.00 GB, 12.50 GB");
}

}  // namespace
}  // namespace tarnwick::testing
