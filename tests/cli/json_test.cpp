#include "cli/Json.h"

#include <gtest/gtest.h>

namespace tarnwick {
namespace {

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
