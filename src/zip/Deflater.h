#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <optional>
#include <span>

struct isal_zstream;

namespace tarnwick {

using Bytes = std::span<std::uint8_t>;

// A file is compressed in blocks, each by itself, so that all cores can work on it.
constexpr std::size_t blockLength = std::size_t(1) << 20;  // bytes

// The longest block as `storeBlock` writes it.
constexpr std::size_t longestStoredBlock = blockLength + 5 * (blockLength / 65535 + 1);

// The last block of a file ends the deflate stream; those before it end at a byte's edge, so that
// the next one can be joined.
enum class BlockPlace { Inside, Last };

// Compresses blocks; each thread has one of its own.
class Deflater {
public:
    Deflater();
    ~Deflater();

    // The length of what was written to the output; null if the block does not get smaller by at
    // least a 64th: what is nearly as large is not worth the time to unpack it.
    std::optional<std::size_t> shrink(Bytes block, Bytes output, BlockPlace place);

private:
    const std::unique_ptr<isal_zstream> stream_;
    const std::unique_ptr<std::uint8_t[]> memory_;
};

// Writes a block that does not shrink into a deflate stream as it is; the length of what was
// written.
std::size_t storeBlock(Bytes block, Bytes output, BlockPlace place);

}  // namespace tarnwick
