#pragma once

#include <cstdint>
#include <functional>

namespace tarnwick {

// Hears how many bytes of how many have passed.
using CopyProgress = std::function<void(std::uint64_t done, std::uint64_t total)>;

}  // namespace tarnwick
