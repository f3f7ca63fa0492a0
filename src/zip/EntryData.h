#pragma once

#include <zip.h>

#include <cstdint>

#include "zip/CompressedFiles.h"

namespace tarnwick {

// The data of an entry as libzip asks for it: that of a file comes compressed, a folder has none.
class EntryData {
public:
    explicit EntryData(const TreeEntry& entry) : entry_(entry) { zip_error_init(&error_); }
    ~EntryData() { zip_error_fini(&error_); }
    EntryData(const EntryData&) = delete;
    EntryData& operator=(const EntryData&) = delete;

    // For zip_file_add, which takes it over; null if memory ended. This must outlive it.
    zip_source_t* newSource();
    // Where the pieces come from, once all entries and their order are known.
    void take(CompressedFiles& files) { files_ = &files; }

    const TreeEntry& entry() const { return entry_; }
    // These hold once all data was asked for.
    std::uint64_t size() const { return size_; }
    std::uint64_t compressedSize() const { return compressedSize_; }
    bool isDeflated() const { return isDeflated_; }
    bool hasChanged() const { return hasChanged_; }
    // errno if the file could not be read, or 0.
    int readError() const { return readError_; }

private:
    static std::int64_t answer(void* entryData, void* data, std::uint64_t length,
                               zip_source_cmd_t command);
    std::int64_t answer(void* data, std::uint64_t length, zip_source_cmd_t command);
    std::int64_t status(void* data) const;
    std::int64_t read(std::uint8_t* data, std::size_t length);
    std::int64_t fail(int error);
    void finishPiece(const Piece& piece);

    const TreeEntry& entry_;
    CompressedFiles* files_ = nullptr;
    zip_error_t error_ = {};
    int readError_ = 0;
    std::size_t position_ = 0;  // in the piece
    std::uint64_t size_ = 0;
    std::uint64_t compressedSize_ = 0;
    std::uint32_t crc_ = 0;
    bool isDeflated_ = false;
    bool hasChanged_ = false;
    bool isComplete_ = false;
};

}  // namespace tarnwick
