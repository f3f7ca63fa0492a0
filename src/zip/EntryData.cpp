#include "zip/EntryData.h"

#include <zlib.h>

#include <algorithm>
#include <cerrno>
#include <new>

namespace tarnwick {

namespace {

// Stored blocks are a little longer than the file.
constexpr std::uint64_t largestForSmallForm = 0xfff00000;

}  // namespace

zip_source_t* EntryData::newSource() {
    return zip_source_function_create(&EntryData::answer, this, nullptr);
}

std::int64_t EntryData::answer(void* entryData, void* data, std::uint64_t length,
                               zip_source_cmd_t command) {
    auto* const self = static_cast<EntryData*>(entryData);
    // No exception may pass through libzip.
    try {
        return self->answer(data, length, command);
    } catch (const std::bad_alloc&) {
        return self->fail(ENOMEM);
    }
}

std::int64_t EntryData::answer(void* data, std::uint64_t length, zip_source_cmd_t command) {
    switch (command) {
        case ZIP_SOURCE_SUPPORTS:
            return ZIP_SOURCE_SUPPORTS_READABLE;
        case ZIP_SOURCE_STAT:
            return status(data);
        case ZIP_SOURCE_OPEN:
            isComplete_ = entry_.isFolder();
            return 0;
        case ZIP_SOURCE_READ:
            return read(static_cast<std::uint8_t*>(data), static_cast<std::size_t>(length));
        case ZIP_SOURCE_ERROR:
            return zip_error_to_data(&error_, data, length);
        default:
            return 0;
    }
}

// libzip takes data as it is if it is deflated already, so that is what it hears at first. The
// header of the entry is completed when the data is there, and then says what it turned out to be.
std::int64_t EntryData::status(void* data) const {
    auto* const result = static_cast<zip_stat_t*>(data);
    zip_stat_init(result);
    result->valid = ZIP_STAT_SIZE | ZIP_STAT_COMP_METHOD;
    result->size = entry_.size;
    result->comp_method = ZIP_CM_DEFLATE;
    // Without a compressed size, libzip provides for one that needs the large form.
    if (entry_.size <= largestForSmallForm)
        result->valid |= ZIP_STAT_COMP_SIZE;
    if (isComplete_) {
        result->valid |= ZIP_STAT_CRC;
        result->size = size_;
        result->crc = crc_;
        result->comp_method = isDeflated_ ? ZIP_CM_DEFLATE : ZIP_CM_STORE;
    }
    return sizeof *result;
}

std::int64_t EntryData::read(std::uint8_t* data, std::size_t length) {
    std::size_t done = 0;
    while (done < length && !isComplete_) {
        const Piece& piece = files_->front();
        if (piece.error != 0)
            return fail(piece.error);
        const std::size_t count = std::min(length - done, piece.length - position_);
        std::copy_n(piece.data.get() + position_, count, data + done);
        done += count;
        position_ += count;
        if (position_ == piece.length)
            finishPiece(piece);
    }
    return static_cast<std::int64_t>(done);
}

std::int64_t EntryData::fail(int error) {
    readError_ = error;
    zip_error_set(&error_, ZIP_ER_READ, error);
    return -1;
}

void EntryData::finishPiece(const Piece& piece) {
    crc_ = static_cast<std::uint32_t>(
        ::crc32_combine(crc_, piece.crc, static_cast<z_off_t>(piece.rawLength)));
    size_ += piece.rawLength;
    compressedSize_ += piece.length;
    isDeflated_ = piece.isDeflated;
    hasChanged_ = hasChanged_ || piece.hasChanged;
    isComplete_ = piece.isLast;
    position_ = 0;
    files_->pop();
}

}  // namespace tarnwick
