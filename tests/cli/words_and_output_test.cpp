#include <gtest/gtest.h>

#include "cli/Arguments.h"
#include "cli/Json.h"
#include "cli/ProgressLine.h"

namespace tarnwick {
namespace {

TEST(Arguments, OptionsStandAnywhere) {
    const Arguments typed =
        parseArguments({"--yes", "restore", "--then", "reboot", "notes", "--json"});
    EXPECT_EQ(typed.words, (std::vector<std::string>{"restore", "notes"}));
    EXPECT_TRUE(typed.yes && typed.json && !typed.dryRun && !typed.fault);
    EXPECT_EQ(typed.then, Offer::Reboot);
    EXPECT_EQ(parseArguments({"--then=nothing"}).then, Offer::None);
    EXPECT_EQ(parseArguments({"list", "--", "--yes"}).words,
              (std::vector<std::string>{"list", "--yes"}));
}

TEST(Arguments, FaultsNameTheNearestWord) {
    EXPECT_EQ(parseArguments({"--then=respirng"}).fault,
              "there is no answer \"respirng\"; did you mean \"respring\" ?");
}

TEST(ProgressLine, ShowsItemPlaceAndTimeWithinTheWidth) {
    using std::chrono::seconds;
    const Progress progress = {
        .label = "Backup in progress...", .item = "calendar", .place = 3, .count = 11};
    EXPECT_EQ(progressText(progress, seconds(3661), 80),
              "Backup in progress... calendar (3/11) 61:01");
    const Progress transfer = {
        .label = "Exporting...", .bytesDone = 30 << 20, .bytes = std::uint64_t(90) << 20};
    EXPECT_EQ(progressText(transfer, seconds(15), 80),
              "Exporting... 33 %, 2.00 MB/s, 0:30 left, 0:15");
    EXPECT_EQ(progressText(transfer, seconds(0), 80), "Exporting... 33 % 0:00");
    EXPECT_EQ(progressText(progress, seconds(0), 10), "Backup in");
    EXPECT_EQ(progressText(progress, seconds(0), 0), "");
}

TEST(Json, WritesOneValidLineWhateverTheTextHolds) {
    EXPECT_EQ(jsonObject({}), "{}");
    EXPECT_EQ(jsonObject({{"a", "b"}, {"n", std::int64_t{-3}}}), R"({"a":"b","n":-3})");
    EXPECT_EQ(jsonObject({{"text", "\"\\\n\t\x01\x7F"}}),
              "{\"text\":\"\\\"\\\\\\n\\t\\u0001\x7F\"}");
    EXPECT_EQ(jsonObject({{"name", "\u00E9\xFF-"}}), "{\"name\":\"\u00E9\uFFFD-\"}");
}

}  // namespace
}  // namespace tarnwick
