#pragma once

#include <zip.h>

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "core/Descriptor.h"

namespace tarnwick {

// An archive as libzip reads and writes it: the old one is read, the new one written to a file of
// its own.
class ArchiveFile {
public:
    enum class OldArchive { Kept, Ignored };

    // `newFile` is open for writing, and is emptied when the writing begins.
    ArchiveFile(const std::string& path, OldArchive oldArchive, int newFile);
    ~ArchiveFile() { zip_error_fini(&error_); }
    ArchiveFile(const ArchiveFile&) = delete;
    ArchiveFile& operator=(const ArchiveFile&) = delete;

    // For zip_open_from_source, which takes it over; null if memory ended. This must outlive it.
    zip_source_t* newSource();

    bool hasOld() const { return old_.has_value(); }
    // Of the new archive, in bytes.
    std::uint64_t newLength() const { return newLength_; }
    // errno of what failed last, or 0. What libzip finds wrong in the old archive is not counted.
    int readError() const { return readError_; }
    int writeError() const { return writeError_; }

private:
    static std::int64_t answer(void* file, void* data, std::uint64_t length,
                               zip_source_cmd_t command);
    std::int64_t answer(void* data, std::uint64_t length, zip_source_cmd_t command);
    std::int64_t seek(std::uint64_t& position, std::uint64_t end, void* data, std::uint64_t length);
    std::int64_t failRead(int error);
    std::int64_t failWrite(bool isDone);

    void openOld(const std::string& path);
    std::int64_t status(void* data);
    std::int64_t read(void* data, std::uint64_t length);
    bool beginWrite();
    bool write(const std::uint8_t* data, std::size_t length);
    bool writeOut();

    const int newFile_;
    zip_error_t error_ = {};
    int readError_ = 0;
    int writeError_ = 0;

    std::optional<Descriptor> old_;
    std::uint64_t oldLength_ = 0;
    std::uint64_t readPosition_ = 0;

    std::uint64_t writePosition_ = 0;
    std::uint64_t newLength_ = 0;
    // What is not yet in the file, and where it belongs.
    std::vector<std::uint8_t> buffer_;
    std::uint64_t bufferStart_ = 0;
};

}  // namespace tarnwick
