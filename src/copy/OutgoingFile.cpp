#include "copy/OutgoingFile.h"

#include <fcntl.h>
#include <sys/stat.h>

#include <algorithm>
#include <memory>

#include "copy/Digest.h"

namespace tarnwick {

namespace {

constexpr std::size_t pieceLength = 256 << 10;  // bytes

// Null at the end, with errno 0, and after a failure.
std::string_view pieceOf(int file, char* buffer, std::uint64_t offset, std::uint64_t length) {
    errno = 0;
    ssize_t count = 0;
    do
        count = ::pread(file, buffer, std::min<std::uint64_t>(length, pieceLength),
                        static_cast<off_t>(offset));
    while (count < 0 && errno == EINTR);
    return {buffer, static_cast<std::size_t>(std::max<ssize_t>(count, 0))};
}

}  // namespace

OutgoingFile::OutgoingFile(const std::string& folder, const std::string& name)
    : file_(::open((folder + "/" + name).c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK | O_NOFOLLOW)) {
    struct stat status = {};
    if (!file_.isOpen() || ::fstat(file_.number(), &status) != 0)
        error_ = errno;
    else if (!S_ISREG(status.st_mode))
        error_ = ENOTSUP;
    facts_ = {.name = name,
              .size = static_cast<std::uint64_t>(status.st_size),
              .modified = status.st_mtime};
}

void OutgoingFile::takeDigest() {
    Digest digest;
    read([&](std::string_view piece) {
        digest.add(piece);
        return true;
    });
    facts_.digest = digest.text();
}

bool OutgoingFile::read(const std::function<bool(std::string_view)>& take) {
    const std::unique_ptr<char[]> buffer(new char[pieceLength]);
    for (std::uint64_t done = 0; done < facts_.size;) {
        const auto piece = pieceOf(file_.number(), buffer.get(), done, facts_.size - done);
        if (piece.empty()) {
            // It has become shorter.
            error_ = errno != 0 ? errno : ESTALE;
            return false;
        }
        if (!take(piece))
            return true;
        done += piece.size();
    }
    return true;
}

}  // namespace tarnwick
