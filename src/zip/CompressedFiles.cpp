#include "zip/CompressedFiles.h"

#include <fcntl.h>
#include <isa-l/crc.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <exception>
#include <new>
#include <utility>

#include "core/Descriptor.h"
#include "zip/HeldSignals.h"

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
    bool hasOtherSize() const {
        struct stat status = {};
        return ::fstat(number(), &status) != 0 ||
               static_cast<std::uint64_t>(status.st_size) != entry_.size;
    }
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
        isDeflated_ = error_ == 0 && entry_.size > blockLength && samplesShrink(deflater);
    }

    // How a long file goes into the archive must be known before its first block is there.
    bool samplesShrink(Deflater& deflater) const {
        constexpr std::size_t sampleLength = 16384;
        constexpr std::size_t sampleCount = blockLength / sampleLength;
        const auto samples = newBuffer(), output = newBuffer();
        std::size_t length = 0;
        for (std::size_t sample = 0; sample < sampleCount; ++sample) {
            const std::uint64_t offset = (entry_.size - sampleLength) / (sampleCount - 1) * sample;
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
    bool isDeflated_ = false;
};

struct CompressedFiles::Job {
    Slot& slot;
    std::shared_ptr<SharedFile> file;
    std::uint64_t offset = 0;
    std::size_t length = 0;
    bool isLast = true;

    void run(Worker& worker) const {
        Piece& piece = slot.piece;
        if (!piece.data)
            piece.data = newBuffer();
        piece = {.data = std::move(piece.data), .isLast = isLast};
        piece.error = file->open(worker.deflater);
        if (piece.error != 0)
            return;
        const auto count = readAt(file->number(), {worker.input.get(), length}, offset);
        if (!count) {
            piece.error = errno;
            return;
        }
        piece.rawLength = *count;
        piece.hasChanged = *count < length || (isLast && file->hasOtherSize());
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

CompressedFiles::Worker::Worker() : input(newBuffer()) {}

CompressedFiles::CompressedFiles(std::vector<const TreeEntry*> files, unsigned cores)
    : files_(std::move(files)) {
    constexpr std::size_t mostThreads = 16;  // bounds the memory
    std::uint64_t size = 0;
    for (const TreeEntry* file : files_)
        size += file->size;
    if (size >= blockLength)
        startThreads(std::clamp<std::size_t>(cores, 1, mostThreads));
}

void CompressedFiles::startThreads(std::size_t count) {
    // Signals are for the main thread.
    const HeldSignals held;
    try {
        while (threads_.size() < count) {
            Worker& worker = workers_.emplace_back();
            threads_.emplace_back([this, &worker] { work(worker); });
        }
    } catch (const std::exception&) {
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

void CompressedFiles::work(Worker& worker) {
    try {
        while (doNext(worker)) {
        }
    } catch (const std::bad_alloc&) {
        {
            const std::lock_guard lock(mutex_);
            isOutOfMemory_ = true;
        }
        isReady_.notify_one();
    }
}

bool CompressedFiles::doNext(Worker& worker) {
    const auto job = nextJob();
    if (!job)
        return false;
    job->run(worker);
    {
        const std::lock_guard lock(mutex_);
        job->slot.isReady = true;
    }
    isReady_.notify_one();
    return true;
}

std::optional<CompressedFiles::Job> CompressedFiles::nextJob() {
    std::unique_lock lock(mutex_);
    isFree_.wait(lock, [this] {
        return isStopped_ || nextFile_ == files_.size() || begun_ < taken_ + slotCount;
    });
    if (isStopped_ || nextFile_ == files_.size())
        return std::nullopt;
    const TreeEntry& entry = *files_[nextFile_];
    if (!openFile_)
        openFile_ = std::make_shared<SharedFile>(entry);
    const std::uint64_t left = entry.size - nextOffset_;
    Job job = {slotOf(begun_++), openFile_, nextOffset_,
               static_cast<std::size_t>(std::min<std::uint64_t>(left, blockLength)),
               left <= blockLength};
    nextOffset_ += job.length;
    if (job.isLast) {
        ++nextFile_;
        nextOffset_ = 0;
        openFile_.reset();
    }
    return job;
}

const Piece& CompressedFiles::front() {
    Slot& slot = slotOf(taken_);
    if (threads_.empty() && !slot.isReady)
        doNext(workers_.empty() ? workers_.emplace_back() : workers_.front());
    std::unique_lock lock(mutex_);
    isReady_.wait(lock, [&] { return slot.isReady || isOutOfMemory_; });
    if (!slot.isReady)
        throw std::bad_alloc();
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
