#include <gtest/gtest.h>
#include <isa-l/crc.h>

#include "support/TemporaryFolder.h"
#include "zip/CompressedFiles.h"
#include "zip/Report.h"

namespace tarnwick::testing {
namespace {

constexpr unsigned coreCount = 8;

class CompressedFilesOnManyCores : public ::testing::Test {
protected:
    // Small ones between large ones, more than are under way at a time.
    CompressedFilesOnManyCores() {
        for (int number = 0; number < 150; ++number) {
            contents.emplace_back(number % 5 == 0 ? 2 * blockLength + 5 : 100,
                                  static_cast<char>(number));
            folder.put("tree/" + std::to_string(1000 + number), contents.back());
        }
        tree = readFolderTree(folder.path() + "/tree/", {}, report);
        for (const TreeEntry& entry : tree) {
            if (!entry.isFolder())
                files.push_back(&entry);
        }
    }

    TemporaryFolder folder;
    ZipReport report{true};
    std::vector<std::string> contents;
    std::vector<TreeEntry> tree;
    std::vector<const TreeEntry*> files;
};

TEST_F(CompressedFilesOnManyCores, ComeInOrder) {
    CompressedFiles compressed(files, coreCount);
    for (const std::string& content : contents) {
        std::size_t length = 0;
        for (bool isLast = false; !isLast; compressed.pop()) {
            const Piece& piece = compressed.front();
            EXPECT_EQ(piece.error, 0);
            const auto* const data =
                reinterpret_cast<const unsigned char*>(content.data() + length);
            EXPECT_EQ(piece.crc, ::crc32_gzip_refl(0, data, piece.rawLength));
            length += piece.rawLength;
            isLast = piece.isLast;
        }
        EXPECT_EQ(length, content.size());
    }
}

TEST_F(CompressedFilesOnManyCores, EndWhenNobodyTakesThem) {
    CompressedFiles compressed(files, coreCount);
    compressed.front();
}

}  // namespace
}  // namespace tarnwick::testing
