#include "copy/CopyWriter.h"

#include <archive.h>
#include <archive_entry.h>

#include <cstring>
#include <memory>
#include <utility>

#include "copy/Digest.h"
#include "core/WriteAll.h"

namespace tarnwick {

namespace {

constexpr int blockLength = 256 << 10;     // bytes
constexpr int lastBlockLength = 20 * 512;  // as tar programs have it
constexpr mode_t readableByAll = 0644;

// The tar archive that goes out.
class Stream {
public:
    explicit Stream(int output)
        : output_(output), archive_(archive_write_new(), archive_write_free) {
        archive_write_set_format_pax_restricted(archive_.get());
        archive_write_set_bytes_per_block(archive_.get(), blockLength);
        archive_write_set_bytes_in_last_block(archive_.get(), lastBlockLength);
        archive_write_open(archive_.get(), this, nullptr, &Stream::write, nullptr);
    }
    // Without a close before, the archive gets no end.
    ~Stream() { archive_write_fail(archive_.get()); }
    Stream(const Stream&) = delete;
    Stream& operator=(const Stream&) = delete;

    bool begin(const std::string& name, std::uint64_t size, std::time_t modified) {
        const std::unique_ptr<archive_entry, void (*)(archive_entry*)> entry(archive_entry_new(),
                                                                             archive_entry_free);
        archive_entry_set_pathname(entry.get(), name.c_str());
        archive_entry_set_filetype(entry.get(), AE_IFREG);
        archive_entry_set_perm(entry.get(), readableByAll);
        archive_entry_set_size(entry.get(), static_cast<la_int64_t>(size));
        archive_entry_set_mtime(entry.get(), modified, 0);
        return archive_write_header(archive_.get(), entry.get()) == ARCHIVE_OK;
    }

    bool add(std::string_view data) {
        return archive_write_data(archive_.get(), data.data(), data.size()) ==
               static_cast<la_ssize_t>(data.size());
    }

    bool close() { return archive_write_close(archive_.get()) == ARCHIVE_OK; }

    std::string fault() const {
        const int error = archive_errno(archive_.get());
        return error == EPIPE ? "nobody reads the copy any more"
                              : std::string("the copy cannot be written: ") + std::strerror(error);
    }

private:
    static la_ssize_t write(archive* archive, void* stream, const void* data, std::size_t length) {
        const int output = static_cast<Stream*>(stream)->output_;
        if (writeAll(output, {static_cast<const char*>(data), length}))
            return static_cast<la_ssize_t>(length);
        archive_set_error(archive, errno, "write");
        return -1;
    }

    const int output_;
    const std::unique_ptr<archive, int (*)(archive*)> archive_;
};

class Writer {
public:
    Writer(int output, const CopyProgress& progress, std::uint64_t total)
        : stream_(output), progress_(progress), total_(total) {}

    std::optional<std::string> write(const Manifest& manifest, std::list<OutgoingFile>& files) {
        const std::string text = textOf(manifest);
        if (!stream_.begin(manifestName, text.size(), std::time(nullptr)) || !stream_.add(text))
            return stream_.fault();
        for (OutgoingFile& file : files)
            if (auto fault = write(file))
                return fault;
        return stream_.close() ? std::nullopt : std::optional(stream_.fault());
    }

private:
    std::optional<std::string> write(OutgoingFile& file) {
        const CopiedFile& facts = file.facts();
        if (!stream_.begin(copyFolder + facts.name, facts.size, facts.modified))
            return stream_.fault();
        Digest digest;
        bool isWritten = true;
        file.read([&](std::string_view piece) {
            digest.add(piece);
            isWritten = stream_.add(piece);
            progress_(done_ += piece.size(), total_);
            return isWritten;
        });
        if (!isWritten)
            return stream_.fault();
        return digest.text() == facts.digest
                   ? std::nullopt
                   : std::optional(facts.name + " changed while it was copied; the copy is broken");
    }

    Stream stream_;
    const CopyProgress& progress_;
    const std::uint64_t total_;
    std::uint64_t done_ = 0;
};

}  // namespace

std::optional<std::string> writeCopy(int output, Manifest manifest, std::list<OutgoingFile>& files,
                                     const CopyProgress& progress) {
    for (const OutgoingFile& file : files)
        manifest.files.push_back(file.facts());
    return Writer(output, progress, manifest.size()).write(manifest, files);
}

}  // namespace tarnwick
