#include "compare/FileSums.h"

#include <fcntl.h>
#include <isa-l/crc.h>
#include <unistd.h>

#include <algorithm>
#include <atomic>
#include <cerrno>
#include <memory>
#include <thread>

#include "core/Descriptor.h"

namespace tarnwick {

namespace {

constexpr std::size_t bufferLength = 256 << 10;  // bytes
// To start a thread takes longer than to read fewer files.
constexpr std::size_t filesPerThread = 16;

// It was a plain file when it was found; if it is a pipe by now, it is not waited for.
void readSum(FileSum& file, std::uint8_t* buffer) {
    const Descriptor open(::open(file.path.c_str(), O_RDONLY | O_NONBLOCK | O_CLOEXEC));
    if (!open.isOpen()) {
        file.error = errno;
        return;
    }
    for (;;) {
        const ssize_t count = ::read(open.number(), buffer, bufferLength);
        if (count < 0 && errno == EINTR)
            continue;
        file.error = count < 0 ? errno : 0;
        if (count <= 0)
            return;
        file.crc = ::crc32_gzip_refl(file.crc, buffer, static_cast<std::uint64_t>(count));
        file.size += static_cast<std::uint64_t>(count);
    }
}

}  // namespace

void readSums(std::vector<FileSum>& files) {
    std::atomic<std::size_t> next = 0;
    const auto work = [&] {
        const std::unique_ptr<std::uint8_t[]> buffer(new std::uint8_t[bufferLength]);
        for (std::size_t index = next++; index < files.size(); index = next++)
            readSum(files[index], buffer.get());
    };
    const std::size_t cores = std::max(1U, std::thread::hardware_concurrency());
    std::vector<std::jthread> helpers;
    while (helpers.size() + 1 < std::min(cores, files.size() / filesPerThread + 1))
        helpers.emplace_back(work);
    work();
}

}  // namespace tarnwick
