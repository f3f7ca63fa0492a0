#include <gtest/gtest.h>

#include "options/OptionsOperations.h"
#include "support/Operations.h"

namespace tarnwick {
namespace {

using testing::Entries;
using testing::Operations;

TEST(OptionsOperations, AnswersOfUnknownAlertsAndButtonsDoNothing) {
    for (int tag = -1; tag <= 9; ++tag) {
        for (const int index : {-1, 0, 12, 100}) {
            Operations on;
            Alert alert;
            alert.tag = tag;
            on.options.alertViewClickedButtonAtIndex(alert, index);
            EXPECT_TRUE(on.diary.entries.empty()) << tag << ", " << index;
            EXPECT_TRUE(on.queues.global.empty()) << tag << ", " << index;
        }
    }
}

// The background task removes the temporary archive while the main queue may not have measured it
// yet.
TEST(OptionsOperations, ATemporaryArchiveIsMeasuredOnlyIfTheMainQueueIsFaster) {
    const auto checkNotes = [](bool mainIsFaster) {
        Operations on;
        on.queues.mainIsFaster = mainIsFaster;
        on.runner.act = [&on](const std::string& line) {
            if (line.starts_with("zip"))
                on.files.texts["/var/tmp/Notes.zip"] = std::string(2048, 'x');
        };
        on.options.backupSize();
        on.diary.entries.clear();
        on.options.alertViewClickedButtonAtIndex(on.feedback.lastAlert, 7);
        on.queues.stepGlobal();
        on.queues.stepMain();
        EXPECT_TRUE(on.files.texts.empty());
        return Entries(on.diary.entries.end() - 4, on.diary.entries.end());
    };
    const std::string answer = "alert: Backup Size: The \"Notes\" backup size is : ";
    EXPECT_EQ(checkNotes(true), (Entries{answer + "2.00 KB [Close] #0", "remove: /var/tmp/Notes",
                                         "hide", "remove: /var/tmp/Notes.zip"}));
    // The HUD itself is dispatched too and so comes late here.
    EXPECT_EQ(checkNotes(false),
              (Entries{"hud: Calculating Backup Size...", answer + "0.00 B [Close] #0",
                       "remove: /var/tmp/Notes", "hide"}));
}

TEST(OptionsOperations, StorageFiguresArriveOnTheMainQueue) {
    Operations on;
    on.files.total = 68719476736;
    on.files.free = 13421772800;
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
}  // namespace tarnwick
