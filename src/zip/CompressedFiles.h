#pragma once

#include <condition_variable>
#include <cstdint>
#include <memory>
#include <mutex>
#include <optional>
#include <thread>
#include <vector>

#include "zip/Deflater.h"
#include "zip/FolderTree.h"

namespace tarnwick {

// A block of a file as it goes into the archive.
struct Piece {
    std::unique_ptr<std::uint8_t[]> data;
    std::size_t length = 0;     // bytes of `data` in use
    std::size_t rawLength = 0;  // bytes of the file that they stand for
    std::uint32_t crc = 0;      // of these bytes
    bool isDeflated = false;    // the same for all pieces of a file
    bool isLast = false;
    bool hasChanged = false;  // the file is not as long as it was when it was found
    int error = 0;            // errno if the file could not be read; then the piece is empty
};

// Reads and compresses files and hands their pieces out in order. At most 64 MB are under way at a
// time. What is small is done without other threads, whose start would take longer.
class CompressedFiles {
public:
    // Begins at once. The files must outlive it.
    CompressedFiles(const std::vector<const TreeEntry*>& files, unsigned cores);
    // Drops what was not taken.
    ~CompressedFiles();
    CompressedFiles(const CompressedFiles&) = delete;
    CompressedFiles& operator=(const CompressedFiles&) = delete;

    // The next piece, valid until `pop`. Waits for it; a piece must be left.
    const Piece& front();
    void pop();

private:
    class SharedFile;
    struct Job;
    // What a thread needs to compress.
    struct Worker {
        Deflater deflater;
        std::unique_ptr<std::uint8_t[]> input;
    };
    struct Slot {
        Piece piece;
        bool isReady = false;
    };
    static constexpr std::size_t slotCount = 64;

    void addJobs(const TreeEntry& entry);
    std::size_t threadsFor(unsigned cores) const;
    void startThreads(std::size_t count);
    void work();
    std::optional<std::size_t> nextJob();
    Slot& slotOf(std::size_t job) { return slots_[job % slotCount]; }

    std::vector<Job> jobs_;
    std::uint64_t size_ = 0;  // of all files, in bytes
    Slot slots_[slotCount];
    std::size_t begun_ = 0;  // jobs
    std::size_t taken_ = 0;  // jobs
    bool isStopped_ = false;
    std::mutex mutex_;
    std::condition_variable isReady_;
    std::condition_variable isFree_;
    std::vector<std::thread> threads_;
    // For the work without threads.
    std::optional<Worker> ownWorker_;
};

}  // namespace tarnwick
