#include <gtest/gtest.h>

#include <clocale>
#include <cmath>
#include <cstdlib>
#include <limits>

#include "options/SizeFormatters.h"
#include "support/TemporaryFolder.h"

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

// Makes a locale with a decimal comma for this test: a machine need not have one.
TEST(SizeFormatters, WriteAPointInALocaleWithAComma) {
    const testing::TemporaryFolder folder;
    const std::string name = "de_DE.UTF-8";
    const std::string line =
        "localedef -i de_DE -f UTF-8 " + folder.path() + "/" + name + " 2>/dev/null";
    if (std::system(line.c_str()) != 0)
        GTEST_SKIP() << "the package locales, whose sources localedef needs, is not installed";
    ASSERT_EQ(::setenv("LOCPATH", folder.path().c_str(), 1), 0);
    ASSERT_NE(std::setlocale(LC_ALL, name.c_str()), nullptr);
    ASSERT_STREQ(std::localeconv()->decimal_point, ",");
    EXPECT_EQ(memoryFormatter(1610612736), "1.50 GB");
    EXPECT_EQ(memoryFormatterDouble(1536), "1.50 KB");
    std::setlocale(LC_ALL, "C");
    ::unsetenv("LOCPATH");
}

}  // namespace
}  // namespace tarnwick
