#include "zip/Request.h"

#include <gtest/gtest.h>

namespace tarnwick::testing {
namespace {

TEST(ZipRequest, IsOneUseAndEverythingElseIsHandedOn) {
    using Words = std::vector<std::string>;
    for (const Words& words :
         {Words{"-r", "/a/b.zip", "/c/"}, {"-rq", "b.zip", "c/"}, {"-q", "-r", "b.zip", "c d/"}})
        EXPECT_TRUE(parseZipRequest(words)) << words.back();
    EXPECT_TRUE(parseZipRequest({"-qr", "b.zip", "c/"})->isQuiet);
    for (const Words& words : {Words{},
                               {"-r"},
                               {"-r", "b.zip"},
                               {"-r", "b.zip", "c"},
                               {"b.zip", "c/"},
                               {"-rm", "b.zip", "c/"},
                               {"-r", "b", "c/"},
                               {"-r", "b.zip", "c/", "d/"},
                               {"-r", "b.zip", "-x/"},
                               {"-r", "b.zip", "*/"},
                               {"-r", "b.zip", "../c/"},
                               {"-r", "b.zip", "./"},
                               {"-r", "-", "c/"},
                               {"-rr", "b.zip", "c/"},
                               {"--recurse-paths", "b.zip", "c/"}})
        EXPECT_FALSE(parseZipRequest(words)) << (words.empty() ? "" : words.back());
}

}  // namespace
}  // namespace tarnwick::testing
