#include <gtest/gtest.h>

#include <cmath>
#include <limits>

#include "options/SizeFormatters.h"

namespace tarnwick {
namespace {

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
        {std::numeric_limits<std::int64_t>::max(), "8589934592.00 GB", "8589934592.00 GB"},
    };
    for (const Row& row : rows) {
        EXPECT_EQ(memoryFormatter(row.bytes), row.partition);
        EXPECT_EQ(memoryFormatterDouble(static_cast<double>(row.bytes)), row.archive);
    }
    EXPECT_EQ(memoryFormatterDouble(std::nan("")), "nan B");
}

}  // namespace
}  // namespace tarnwick
