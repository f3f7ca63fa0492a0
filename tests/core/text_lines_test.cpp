#include <gtest/gtest.h>

#include "core/TextLines.h"

namespace tarnwick {
namespace {

TEST(TextLines, SplitsAtEverySingleNewlineCharacter) {
    const std::pair<std::optional<std::string>, Lines> rows[] = {
        {"", {""}},
        {"one\r\ntwo\n", {"one", "", "two", ""}},
        {"a\vb\fc\rd\u0085e\u2028 f\u2029g", {"a", "b", "c", "d", "e", " f", "g"}},
        // Neighbours of the newline characters are none.
        {"a\tb\x0E\u0084\u0086\u2027\u202A", {"a\tb\x0E\u0084\u0086\u2027\u202A"}},
        {std::nullopt, {}},
    };
    for (const auto& [text, lines] : rows)
        EXPECT_EQ(splitLines(text), lines);
}

TEST(TextLines, TakesValidUtf8Only) {
    for (const char* text :
         {"", "plain", "\u00E9\u4E2D", "\U0001F4F1", "\xEF\xBF\xBF", "\xF4\x8F\xBF\xBF",
          "\xED\x9F\xBF", "\xC2\x80", "\xE0\xA0\x80", "\xF0\x90\x80\x80"})
        EXPECT_TRUE(isValidUtf8(text)) << text;
    for (const char* text : {"\xFF", "\x80", "a\xC3", "\xC3(", "\xC0\xAF", "\xE0\x80\xAF",
                             "\xE2\x28\xA1", "\xE2\x82", "\xED\xA0\x80", "\xF0\x80\x80\x80",
                             "\xF4\x90\x80\x80", "\xF5\x80\x80\x80", "\xF0\x9F\x98"})
        EXPECT_FALSE(isValidUtf8(text)) << text;
}

TEST(TextLines, JoinsWithoutANewlineAtTheEnd) {
    EXPECT_EQ(joinLines({}), "");
    EXPECT_EQ(joinLines({"one", "", "two", ""}), "one\n\ntwo\n");
}

TEST(TextLines, DropsEveryOccurrenceOfAKnownLineAndNothingElse) {
    EXPECT_EQ(linesWithout({"deb", "x", "deb", "x", "", "Deb", "deb "}, {"deb", "y"}),
              (Lines{"x", "x", "", "Deb", "deb "}));
    EXPECT_EQ(linesWithout({"", "a", ""}, {""}), (Lines{"a"}));
}

}  // namespace
}  // namespace tarnwick
