// Byte counts as short texts. Two formatters, with tiers and unit words of their own; units are
// powers of two. The texts are the same in every locale.
#pragma once

#include <cstdint>
#include <string>

namespace tarnwick {

// For a partition: GB, MB, and "bytes" below one MB.
std::string memoryFormatter(std::int64_t bytes);

// For an archive: GB, MB, KB, and "B" below one KB. What is not a number falls to the bottom.
std::string memoryFormatterDouble(double bytes);

}  // namespace tarnwick
