#include "zip/CompressedFiles.h"

#include <fcntl.h>
#include <isa-l/crc.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <system_error>
#include <utility>

#include "core/Descriptor.h"

namespace tarnwick {

namespace {

std::unique_ptr<std::uint8_t[]> newBuffer() {
    return std::make_unique_for_overwrite<std::uint8_t[]>(longestStoredBlock);
}

// Fewer bytes than wanted at the end of the file; null after an error.
std::optional<std::size_t> readAt(int file, Bytes target, std::uint64_t offset) {
    std::size_t done = 0;
    while (done < target.size()) {
        const ssize_t count = ::pread(file, target.data() + done, target.size() - done,
                                      static_cast<off_t>(offset + done));
        if (count == 0)
            break;
        if (count > 0)
            done += static_cast<std::size_t>(count);
        else if (errno != EINTR)
            return std::nullopt;
    }
    return done;
}

}  // namespace

// A file that is opened by the first thread that needs it.
class CompressedFiles::SharedFile {
public:
    explicit SharedFile(const TreeEntry& entry) : entry_(entry) {}

    // errno, or 0.
    int open(Deflater& deflater) {
        std::call_once(isOpened_, [&] { openNow(deflater); });
        return error_;
    }
    int number() const { return file_->number(); }
    bool hasOtherSize() const { return hasOtherSize_; }
    // Of a file of several blocks.
    bool isDeflated() const { return isDeflated_; }

private:
    void openNow(Deflater& deflater) {
        // It may have become a pipe by now.
        const int flags = O_RDONLY | O_CLOEXEC | O_NONBLOCK | O_NOCTTY;
        file_.emplace(::open(entry_.path.c_str(), flags));
        struct stat status = {};
        if (!file_->isOpen() || ::fstat(number(), &status) != 0)
            error_ = errno;
        else if (!S_ISREG(status.st_mode))
            error_ = ENOENT;
        hasOtherSize_ = status.st_size != entry_.status.st_size;
        isDeflated_ = error_ == 0 && entry_.size() > blockLength && samplesShrink(deflater);
    }

    // How a long file goes into the archive must be known before its first block is there.
    bool samplesShrink(Deflater& deflater) const {
        constexpr std::size_t sampleLength = 16384;
        constexpr std::size_t sampleCount = blockLength / sampleLength;
        const auto samples = newBuffer(), output = newBuffer();
        std::size_t length = 0;
        for (std::size_t sample = 0; sample < sampleCount; ++sample) {
            const std::uint64_t offset =
                (entry_.size() - sampleLength) / (sampleCount - 1) * sample;
            length += readAt(number(), {samples.get() + length, sampleLength}, offset).value_or(0);
        }
        return deflater
            .shrink({samples.get(), length}, {output.get(), longestStoredBlock}, BlockPlace::Last)
            .has_value();
    }

    const TreeEntry& entry_;
    std::once_flag isOpened_;
    std::optional<Descriptor> file_;
    int error_ = 0;
    bool hasOtherSize_ = false;
    bool isDeflated_ = false;
};

struct CompressedFiles::Job {
    std::shared_ptr<SharedFile> file;
    std::uint64_t offset = 0;
    std::size_t length = 0;
    bool isLast = true;

    void run(Worker& worker, Piece& piece) const {
        if (!piece.data)
            piece.data = newBuffer();
        piece = {
            .data = std::move(piece.data), .isLast = isLast, .error = file->open(worker.deflater)};
        if (piece.error != 0)
            return;
        const auto count = readAt(file->number(), {worker.input.get(), length}, offset);
        if (!count) {
            piece.error = errno;
            return;
        }
        piece.rawLength = *count;
        piece.hasChanged = *count < length || file->hasOtherSize();
        piece.crc = ::crc32_gzip_refl(0, worker.input.get(), piece.rawLength);
        compress(worker, piece);
    }

    void compress(Worker& worker, Piece& piece) const {
        const bool isWholeFile = offset == 0 && isLast;
        const Bytes raw(worker.input.get(), piece.rawLength);
        const Bytes output(piece.data.get(), longestStoredBlock);
        const BlockPlace place = isLast ? BlockPlace::Last : BlockPlace::Inside;
        std::optional<std::size_t> shrunkLength;
        if (isWholeFile || file->isDeflated())
            shrunkLength = worker.deflater.shrink(raw, output, place);
        piece.isDeflated = shrunkLength || file->isDeflated();
        if (shrunkLength) {
            piece.length = *shrunkLength;
        } else if (piece.isDeflated) {
            piece.length = storeBlock(raw, output, place);
        } else {
            piece.length = raw.size();
            std::swap(piece.data, worker.input);
        }
    }
};

CompressedFiles::CompressedFiles(const std::vector<const TreeEntry*>& files, unsigned cores) {
    for (const TreeEntry* file : files)
        addJobs(*file);
    startThreads(threadsFor(cores));
}

std::size_t CompressedFiles::threadsFor(unsigned cores) const {
    return size_ < blockLength ? 0 : std::min<std::size_t>(std::max(cores, 1U), jobs_.size());
}

void CompressedFiles::startThreads(std::size_t count) {
    try {
        while (threads_.size() < count)
            threads_.emplace_back([this] { work(); });
    } catch (const std::system_error&) {
        // Fewer will do, or none.
    }
}

CompressedFiles::~CompressedFiles() {
    {
        const std::lock_guard lock(mutex_);
        isStopped_ = true;
    }
    isFree_.notify_all();
    for (std::thread& thread : threads_)
        thread.join();
}

void CompressedFiles::addJobs(const TreeEntry& entry) {
    const auto file = std::make_shared<SharedFile>(entry);
    size_ += entry.size();
    std::uint64_t offset = 0;
    for (; entry.size() - offset > blockLength; offset += blockLength)
        jobs_.push_back({file, offset, blockLength, false});
    jobs_.push_back({file, offset, static_cast<std::size_t>(entry.size() - offset), true});
}

void CompressedFiles::work() {
    Worker worker = {.input = newBuffer()};
    while (const auto job = nextJob()) {
        Slot& slot = slotOf(*job);
        jobs_[*job].run(worker, slot.piece);
        jobs_[*job].file.reset();
        {
            const std::lock_guard lock(mutex_);
            slot.isReady = true;
        }
        isReady_.notify_one();
    }
}

std::optional<std::size_t> CompressedFiles::nextJob() {
    std::unique_lock lock(mutex_);
    isFree_.wait(lock, [this] {
        return isStopped_ || begun_ == jobs_.size() || begun_ < taken_ + slotCount;
    });
    if (isStopped_ || begun_ == jobs_.size())
        return std::nullopt;
    return begun_++;
}

const Piece& CompressedFiles::front() {
    Slot& slot = slotOf(taken_);
    if (threads_.empty() && !slot.isReady) {
        if (!ownWorker_)
            ownWorker_.emplace().input = newBuffer();
        jobs_[taken_].run(*ownWorker_, slot.piece);
        slot.isReady = true;
    }
    std::unique_lock lock(mutex_);
    isReady_.wait(lock, [&] { return slot.isReady; });
    return slot.piece;
}

void CompressedFiles::pop() {
    {
        const std::lock_guard lock(mutex_);
        slotOf(taken_).isReady = false;
        ++taken_;
    }
    isFree_.notify_one();
}

}  // namespace tarnwick
