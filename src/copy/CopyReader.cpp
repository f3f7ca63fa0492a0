#include "copy/CopyReader.h"

#include <archive.h>
#include <archive_entry.h>
#include <unistd.h>

#include <cerrno>
#include <cstring>
#include <memory>
#include <utility>

#include "copy/Digest.h"

namespace tarnwick {

namespace {

using Fault = CopySink::Fault;

constexpr std::size_t blockLength = 256 << 10;  // bytes
constexpr std::uint64_t longestEnd = std::uint64_t(1)
                                     << 20;  // bytes of nothing after the last file

// The tar archive that comes in.
class Stream {
public:
    explicit Stream(int input)
        : input_(input),
          block_(new char[blockLength]),
          archive_(archive_read_new(), archive_read_free) {
        archive_read_support_format_tar(archive_.get());
        archive_read_open(archive_.get(), this, nullptr, &Stream::read, nullptr);
    }
    Stream(const Stream&) = delete;
    Stream& operator=(const Stream&) = delete;

    // ARCHIVE_OK, ARCHIVE_EOF, or anything else.
    int next() { return archive_read_next_header(archive_.get(), &entry_); }

    std::string name() const {
        const char* const name = archive_entry_pathname(entry_);
        return name != nullptr ? name : "";
    }
    bool isPlainFile() const {
        return archive_entry_filetype(entry_) == AE_IFREG &&
               archive_entry_hardlink(entry_) == nullptr &&
               archive_entry_symlink(entry_) == nullptr;
    }
    std::uint64_t size() const { return static_cast<std::uint64_t>(archive_entry_size(entry_)); }

    // Below 0 after a failure, 0 at the end of the entry.
    la_ssize_t read(char* buffer, std::size_t length) {
        return archive_read_data(archive_.get(), buffer, length);
    }

    // Takes what is left, so that whoever writes it is not cut off. Returns false if it is too
    // much.
    bool drain() {
        std::uint64_t rest = 0;
        for (la_ssize_t count = 1; count > 0 && rest <= longestEnd;
             rest += static_cast<std::uint64_t>(count))
            count = std::max<la_ssize_t>(readBlock(), 0);
        return rest <= longestEnd;
    }

    std::string fault() const {
        const std::string place =
            ", after " + std::to_string(archive_filter_bytes(archive_.get(), 0)) + " bytes";
        if (error_ != 0)
            return "it cannot be read" + place + ": " + std::strerror(error_);
        return (hasEnded_ ? "it is cut off" : "it is damaged") + place;
    }

private:
    static la_ssize_t read(archive* archive, void* self, const void** data) {
        auto* const stream = static_cast<Stream*>(self);
        *data = stream->block_.get();
        const la_ssize_t count = stream->readBlock();
        if (count < 0)
            archive_set_error(archive, stream->error_, "read");
        return count;
    }

    la_ssize_t readBlock() {
        ssize_t count = 0;
        do
            count = ::read(input_, block_.get(), blockLength);
        while (count < 0 && errno == EINTR);
        error_ = count < 0 ? errno : 0;
        hasEnded_ = count == 0;
        return count;
    }

    const int input_;
    bool hasEnded_ = false;
    int error_ = 0;
    const std::unique_ptr<char[]> block_;
    const std::unique_ptr<archive, int (*)(archive*)> archive_;
    archive_entry* entry_ = nullptr;  // the archive's
};

class Reader {
public:
    Reader(int input, const std::vector<std::string>& names, CopySink& sink,
           const CopyProgress& progress)
        : stream_(input), names_(names), sink_(sink), progress_(progress) {}

    ReadCopy read() {
        ReadCopy copy;
        copy.fault = readManifest();
        if (!copy.fault)
            copy.fault = readFiles();
        copy.manifest = std::move(manifest_);
        return copy;
    }

private:
    Fault readManifest() {
        constexpr const char* noCopy = "this is no copy of a safeguard folder";
        if (stream_.next() != ARCHIVE_OK || stream_.name() != manifestName ||
            !stream_.isPlainFile() || stream_.size() > longestManifest)
            return noCopy;
        std::string text(stream_.size(), '\0');
        if (stream_.read(text.data(), text.size()) != static_cast<la_ssize_t>(text.size()))
            return stream_.fault();
        auto result = manifestIn(text, names_);
        if (const auto* const fault = std::get_if<std::string>(&result))
            return *fault;
        manifest_ = std::get<Manifest>(std::move(result));
        total_ = manifest_->size();
        return sink_.begin(*manifest_);
    }

    Fault readFiles() {
        for (const CopiedFile& file : manifest_->files)
            if (auto fault = readFile(file))
                return fault;
        const int end = stream_.next();
        if (end == ARCHIVE_OK)
            return "its manifest does not know \"" + stream_.name() + "\"";
        if (end != ARCHIVE_EOF)
            return stream_.fault();
        return stream_.drain() ? Fault() : "something follows it";
    }

    Fault readFile(const CopiedFile& file) {
        if (auto fault = faultOfEntry(stream_.next(), file))
            return fault;
        if (auto fault = sink_.open(file))
            return fault;
        if (auto fault = readContents(file))
            return fault;
        return sink_.close();
    }

    Fault faultOfEntry(int result, const CopiedFile& file) const {
        if (result != ARCHIVE_OK && result != ARCHIVE_EOF)
            return "in front of " + file.name + " " + stream_.fault();
        if (result == ARCHIVE_EOF || stream_.name() != copyFolder + file.name)
            return file.name + " is not at its place";
        if (!stream_.isPlainFile())
            return file.name + " is no plain file";
        if (stream_.size() != file.size)
            return file.name + " has not the size that the manifest tells";
        return {};
    }

    Fault readContents(const CopiedFile& file) {
        Digest digest;
        std::uint64_t left = file.size;
        for (la_ssize_t count = 1; left > 0; left -= static_cast<std::uint64_t>(count)) {
            count = stream_.read(buffer_.get(), std::min<std::uint64_t>(left, blockLength));
            if (count <= 0)
                return "in " + file.name + " " + stream_.fault();
            const std::string_view piece(buffer_.get(), static_cast<std::size_t>(count));
            digest.add(piece);
            progress_(done_ += piece.size(), total_);
            if (auto fault = sink_.write(piece))
                return fault;
        }
        return digest.text() == file.digest ? Fault() : file.name + " is not what was sent";
    }

    Stream stream_;
    const std::vector<std::string>& names_;
    CopySink& sink_;
    const CopyProgress& progress_;
    const std::unique_ptr<char[]> buffer_{new char[blockLength]};
    std::optional<Manifest> manifest_;
    std::uint64_t done_ = 0;
    std::uint64_t total_ = 0;
};

}  // namespace

ReadCopy readCopy(int input, const std::vector<std::string>& names, CopySink& sink,
                  const CopyProgress& progress) {
    return Reader(input, names, sink, progress).read();
}

}  // namespace tarnwick
