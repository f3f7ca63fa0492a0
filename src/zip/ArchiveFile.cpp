#include "zip/ArchiveFile.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <new>
#include <string_view>

#include "core/WriteAll.h"

namespace tarnwick {

namespace {

constexpr std::size_t bufferLength = std::size_t(1) << 20;  // bytes

}  // namespace

ArchiveFile::ArchiveFile(const std::string& path, OldArchive oldArchive, int newFile)
    : newFile_(newFile) {
    zip_error_init(&error_);
    if (oldArchive == OldArchive::Kept)
        openOld(path);
}

// A link would let its owner have us read any file.
void ArchiveFile::openOld(const std::string& path) {
    old_.emplace(::open(path.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK | O_NOFOLLOW));
    struct stat found = {};
    if (!old_->isOpen() || ::fstat(old_->number(), &found) != 0)
        readError_ = errno;
    else if (!S_ISREG(found.st_mode))
        readError_ = EISDIR;
    oldLength_ = static_cast<std::uint64_t>(found.st_size);
    if (readError_ == ENOENT) {
        readError_ = 0;
        old_.reset();
    }
}

zip_source_t* ArchiveFile::newSource() {
    return zip_source_function_create(&ArchiveFile::answer, this, nullptr);
}

// No exception may pass through libzip.
std::int64_t ArchiveFile::answer(void* file, void* data, std::uint64_t length,
                                 zip_source_cmd_t command) {
    auto* const self = static_cast<ArchiveFile*>(file);
    try {
        return self->answer(data, length, command);
    } catch (const std::bad_alloc&) {
        return self->failRead(ENOMEM);
    }
}

std::int64_t ArchiveFile::answer(void* data, std::uint64_t length, zip_source_cmd_t command) {
    switch (command) {
        case ZIP_SOURCE_SUPPORTS:
            return ZIP_SOURCE_SUPPORTS_WRITABLE;
        case ZIP_SOURCE_STAT:
            return status(data);
        case ZIP_SOURCE_OPEN:
            readPosition_ = 0;
            return 0;
        case ZIP_SOURCE_READ:
            return read(data, length);
        case ZIP_SOURCE_CLOSE:
            return 0;
        case ZIP_SOURCE_SEEK:
            return seek(readPosition_, oldLength_, data, length);
        case ZIP_SOURCE_TELL:
            return static_cast<std::int64_t>(readPosition_);
        case ZIP_SOURCE_BEGIN_WRITE:
            return failWrite(beginWrite());
        case ZIP_SOURCE_WRITE:
            return failWrite(write(static_cast<std::uint8_t*>(data),
                                   static_cast<std::size_t>(length))) < 0
                       ? -1
                       : static_cast<std::int64_t>(length);
        case ZIP_SOURCE_SEEK_WRITE:
            return seek(writePosition_, newLength_, data, length);
        case ZIP_SOURCE_TELL_WRITE:
            return static_cast<std::int64_t>(writePosition_);
        case ZIP_SOURCE_COMMIT_WRITE:
            return failWrite(writeOut());
        case ZIP_SOURCE_ROLLBACK_WRITE:
            return 0;
        case ZIP_SOURCE_ERROR:
            return zip_error_to_data(&error_, data, length);
        case ZIP_SOURCE_FREE:
            return 0;
        default:
            zip_error_set(&error_, ZIP_ER_OPNOTSUPP, 0);
            return -1;
    }
}

std::int64_t ArchiveFile::seek(std::uint64_t& position, std::uint64_t end, void* data,
                               std::uint64_t length) {
    const std::int64_t target =
        zip_source_seek_compute_offset(position, end, data, length, &error_);
    if (target < 0)
        return -1;
    position = static_cast<std::uint64_t>(target);
    return 0;
}

std::int64_t ArchiveFile::failRead(int error) {
    readError_ = error;
    zip_error_set(&error_, ZIP_ER_READ, error);
    return -1;
}

std::int64_t ArchiveFile::failWrite(bool isDone) {
    if (isDone)
        return 0;
    writeError_ = errno;
    zip_error_set(&error_, ZIP_ER_WRITE, writeError_);
    return -1;
}

std::int64_t ArchiveFile::status(void* data) {
    if (readError_ != 0 || !old_) {
        // libzip makes a new archive where there is none.
        zip_error_set(&error_, ZIP_ER_READ, old_ ? readError_ : ENOENT);
        return -1;
    }
    auto* const result = static_cast<zip_stat_t*>(data);
    zip_stat_init(result);
    result->valid = ZIP_STAT_SIZE;
    result->size = oldLength_;
    return sizeof *result;
}

std::int64_t ArchiveFile::read(void* data, std::uint64_t length) {
    const ssize_t count = ::pread(old_->number(), data, static_cast<std::size_t>(length),
                                  static_cast<off_t>(readPosition_));
    if (count < 0)
        return failRead(errno);
    readPosition_ += static_cast<std::uint64_t>(count);
    return count;
}

bool ArchiveFile::beginWrite() {
    buffer_.reserve(bufferLength);
    return ::ftruncate(newFile_, 0) == 0;
}

bool ArchiveFile::write(const std::uint8_t* data, std::size_t length) {
    // libzip goes back to complete the header of an entry.
    if (writePosition_ < bufferStart_ || writePosition_ > bufferStart_ + buffer_.size()) {
        if (!writeOut())
            return false;
        bufferStart_ = writePosition_;
    }
    const auto offset = static_cast<std::size_t>(writePosition_ - bufferStart_);
    buffer_.resize(std::max(buffer_.size(), offset + length));
    std::copy_n(data, length, buffer_.begin() + static_cast<std::ptrdiff_t>(offset));
    writePosition_ += length;
    newLength_ = std::max(newLength_, writePosition_);
    return buffer_.size() < bufferLength || writeOut();
}

bool ArchiveFile::writeOut() {
    const std::string_view bytes(reinterpret_cast<const char*>(buffer_.data()), buffer_.size());
    if (::lseek(newFile_, static_cast<off_t>(bufferStart_), SEEK_SET) < 0 ||
        !writeAll(newFile_, bytes))
        return false;
    // The disk begins now, rather than when all is there.
    if (buffer_.size() >= bufferLength)
        ::sync_file_range(newFile_, static_cast<off_t>(bufferStart_),
                          static_cast<off_t>(buffer_.size()), SYNC_FILE_RANGE_WRITE);
    bufferStart_ += buffer_.size();
    buffer_.clear();
    return true;
}

}  // namespace tarnwick
