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
    const std::pair<std::vector<std::string>, const char*> rows[] = {
        {{"--then", "rebot"}, "there is no answer \"rebot\"; did you mean \"reboot\" ?"},
        {{"--then=respirng"}, "there is no answer \"respirng\"; did you mean \"respring\" ?"},
    };
    for (const auto& [typed, fault] : rows)
        EXPECT_EQ(parseArguments(typed).fault, fault);
    EXPECT_TRUE(parseArguments({"--then"}).fault.has_value());
}

TEST(ProgressLine, ShowsItemPlaceAndTimeWithinTheWidth) {
    using std::chrono::seconds;
    Progress progress = {.label = "Backup in progress..."};
    EXPECT_EQ(progressText(progress, seconds(5), 80), "Backup in progress... 0:05");
    progress.item = "calendar";
    progress.place = 3;
    progress.count = 11;
    EXPECT_EQ(progressText(progress, seconds(3661), 80),
              "Backup in progress... calendar (3/11) 61:01");
    EXPECT_EQ(progressText(progress, seconds(0), 10), "Backup in");
    EXPECT_EQ(progressText(progress, seconds(0), 0), "");
}

TEST(Json, WritesOneValidLineWhateverTheTextHolds) {
    EXPECT_EQ(jsonObject({}), "{}");
    EXPECT_EQ(jsonObject({{"a", "b"}, {"n", std::int64_t{-3}}}), R"({"a":"b","n":-3})");
    EXPECT_EQ(jsonObject({{"text", "\"\\\n\t\x01\x7F"}}),
              "{\"text\":\"\\\"\\\\\\n\\t\\u0001\x7F\"}");
    EXPECT_EQ(jsonObject({{"name", "\u00E9"}}), "{\"name\":\"\u00E9\"}");
    EXPECT_EQ(jsonObject({{"name", "a\xFF-"}}), "{\"name\":\"a\uFFFD-\"}");
}

}  // namespace
}  // namespace tarnwick
