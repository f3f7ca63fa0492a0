#pragma once

#include <zip.h>

#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "core/Descriptor.h"
#include "zip/UnfinishedFile.h"

namespace tarnwick {

// An archive as libzip reads and writes it. What stands under its name stays until the new one is
// whole and on the disk.
class ArchiveFile {
public:
    // Whether the entries of the archive that is there are kept, or the whole archive is put aside
    // as NAME.damaged.
    enum class OldArchive { Kept, PutAside };

    ArchiveFile(std::string path, OldArchive oldArchive);
    ~ArchiveFile() { zip_error_fini(&error_); }
    ArchiveFile(const ArchiveFile&) = delete;
    ArchiveFile& operator=(const ArchiveFile&) = delete;

    // What is still to be done to the finished file, given its descriptor and length, before it is
    // put in place. Returns false, with errno set, if it failed.
    using Finish = std::function<bool(int file, std::uint64_t length)>;
    void finishWith(Finish finish) { finish_ = std::move(finish); }

    // For zip_open_from_source, which takes it over; null if memory ended. This must outlive it.
    zip_source_t* newSource();

    // errno of what failed last, or 0. What libzip finds wrong in the old archive is not counted.
    int readError() const { return readError_; }
    int writeError() const { return writeError_; }

private:
    static std::int64_t answer(void* file, void* data, std::uint64_t length,
                               zip_source_cmd_t command);
    std::int64_t answer(void* data, std::uint64_t length, zip_source_cmd_t command);
    std::int64_t failRead(int error);
    std::int64_t failWrite(bool isDone, int code);

    std::int64_t open();
    std::int64_t status(void* data);
    std::int64_t read(void* data, std::uint64_t length);
    bool beginWrite();
    bool write(const std::uint8_t* data, std::size_t length);
    bool writeOut();
    bool commit();

    const std::string path_;
    const OldArchive oldArchive_;
    Finish finish_;
    zip_error_t error_ = {};
    int readError_ = 0;
    int writeError_ = 0;

    std::optional<Descriptor> old_;
    std::uint64_t oldLength_ = 0;
    std::uint64_t readPosition_ = 0;

    std::optional<UnfinishedFile> unfinished_;
    std::uint64_t writePosition_ = 0;
    std::uint64_t newLength_ = 0;
    // What is not yet in the file, and where it belongs.
    std::vector<std::uint8_t> buffer_;
    std::uint64_t bufferStart_ = 0;
};

}  // namespace tarnwick
