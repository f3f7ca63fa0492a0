#include <gtest/gtest.h>

#include "core/TextLines.h"

namespace tarnwick {
namespace {

TEST(TextLines, SplitsAtEverySingleNewlineCharacter) {
    struct Row {
        std::string text;
        std::vector<std::string> lines;
    };
    const Row rows[] = {
        {"", {""}},
        {"one", {"one"}},
        {"one\n", {"one", ""}},
        {"\n", {"", ""}},
        {"one\r\ntwo", {"one", "", "two"}},
        {"a\vb\fc\rd", {"a", "b", "c", "d"}},
        {"a\u0085b\u2028c\u2029d", {"a", "b", "c", "d"}},
        // Neighbours of the newline characters are none.
        {"a\tb\x0E\u0084\u0086\u2027\u202A", {"a\tb\x0E\u0084\u0086\u2027\u202A"}},
        {std::string("a\0b\nc", 5), {std::string("a\0b", 3), "c"}},
        {" kept \n\n kept ", {" kept ", "", " kept "}},
    };
    for (const Row& row : rows) {
        const std::optional<std::string> text = row.text;
        const Lines lines = splitLines(text);
        EXPECT_EQ(std::vector<std::string>(lines.begin(), lines.end()), row.lines) << row.text;
    }
    EXPECT_TRUE(splitLines(std::nullopt).empty());
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
    EXPECT_EQ(joinLines({""}), "");
    EXPECT_EQ(joinLines({"one", "", "two"}), "one\n\ntwo");
    EXPECT_EQ(joinLines({"one", ""}), "one\n");
}

TEST(TextLines, DropsEveryOccurrenceOfAKnownLineAndNothingElse) {
    EXPECT_EQ(linesWithout({"a", "b", "a", "c"}, {"a"}), (Lines{"b", "c"}));
    EXPECT_EQ(linesWithout({"x", "x", ""}, {"y"}), (Lines{"x", "x", ""}));
    EXPECT_EQ(linesWithout({"", "a", ""}, {""}), (Lines{"a"}));
    EXPECT_EQ(linesWithout({"Deb", "deb ", " deb"}, {"deb"}), (Lines{"Deb", "deb ", " deb"}));
}

}  // namespace
}  // namespace tarnwick
