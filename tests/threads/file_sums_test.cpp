#include <gtest/gtest.h>
#include <zlib.h>

#include <cerrno>

#include "compare/FileSums.h"
#include "support/TemporaryFolder.h"

namespace tarnwick::testing {
namespace {

TEST(FileSums, AreThoseOfZlibWhicheverThreadReads) {
    const TemporaryFolder folder;
    std::vector<FileSum> files;
    std::vector<std::string> contents;
    for (std::size_t index = 0; index < 300; ++index) {
        contents.emplace_back(index * index * 7, static_cast<char>(index));
        folder.put(std::to_string(index), contents.back());
        files.push_back({.path = folder.path() + "/" + std::to_string(index)});
    }
    files.push_back({.path = folder.path() + "/none"});
    files.push_back({.path = folder.path()});
    readSums(files);
    for (std::size_t index = 0; index < contents.size(); ++index) {
        const std::string& content = contents[index];
        EXPECT_EQ(files[index].size, content.size());
        EXPECT_EQ(files[index].crc, ::crc32(0, reinterpret_cast<const Bytef*>(content.data()),
                                            static_cast<uInt>(content.size())))
            << index;
    }
    EXPECT_EQ(files[300].error, ENOENT);
    EXPECT_EQ(files[301].error, EISDIR);
}

}  // namespace
}  // namespace tarnwick::testing
