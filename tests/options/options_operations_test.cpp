#include <gtest/gtest.h>

#include <cmath>

#include "cli/Words.h"
#include "options/OptionsOperations.h"
#include "options/SizeFormatters.h"
#include "support/Operations.h"

namespace tarnwick::testing {
namespace {

TEST(OptionsOperations, AnswersOfUnknownAlertsAndButtonsDoNothing) {
    const int afterTheLastItem = static_cast<int>(itemWords(ItemCatalogue()).size()) + 1;
    for (int tag = -1; tag <= 9; ++tag) {
        for (const int index : {-1, 0, afterTheLastItem, 100}) {
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

TEST(SizeFormatters, EachHasItsOwnTiersAndWords) {
    struct Row {
        std::int64_t bytes;
        const char* partition;
        const char* archive;
    };
    const Row rows[] = {
        {0, "0.00 bytes", "0.00 B"},
        {1024, "1024.00 bytes", "1.00 KB"},
        {1048575, "1048575.00 bytes", "1024.00 KB"},
        {1048576, "1.00 MB", "1.00 MB"},
        {1073741823, "1024.00 MB", "1024.00 MB"},
        {1073741824, "1.00 GB", "1.00 GB"},
        {-5, "-5.00 bytes", "-5.00 B"},
    };
    for (const Row& row : rows) {
        EXPECT_EQ(memoryFormatter(row.bytes), row.partition);
        EXPECT_EQ(memoryFormatterDouble(static_cast<double>(row.bytes)), row.archive);
    }
    EXPECT_EQ(memoryFormatterDouble(std::nan("")), "nan B");
}

}  // namespace
}  // namespace tarnwick::testing
