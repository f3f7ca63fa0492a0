#pragma once

#include <condition_variable>
#include <cstdint>
#include <deque>
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
    CompressedFiles(std::vector<const TreeEntry*> files, unsigned cores);
    // Drops what was not taken.
    ~CompressedFiles();
    CompressedFiles(const CompressedFiles&) = delete;
    CompressedFiles& operator=(const CompressedFiles&) = delete;

    // The next piece, valid until `pop`. Waits for it; a piece must be left. Throws bad_alloc.
    const Piece& front();
    void pop();

private:
    class SharedFile;
    struct Job;
    // What a thread needs to compress.
    struct Worker {
        Worker();
        Deflater deflater;
        std::unique_ptr<std::uint8_t[]> input;
    };
    struct Slot {
        Piece piece;
        bool isReady = false;
    };
    static constexpr std::size_t slotCount = 64;

    void startThreads(std::size_t count);
    void work(Worker& worker);
    bool doNext(Worker& worker);
    std::optional<Job> nextJob();
    Slot& slotOf(std::size_t job) { return slots_[job % slotCount]; }

    const std::vector<const TreeEntry*> files_;
    Slot slots_[slotCount];
    std::mutex mutex_;
    std::condition_variable isReady_;
    std::condition_variable isFree_;

    // Where the next job begins.
    std::size_t nextFile_ = 0;
    std::uint64_t nextOffset_ = 0;
    std::shared_ptr<SharedFile> openFile_;

    std::size_t begun_ = 0;  // jobs
    std::size_t taken_ = 0;  // jobs
    bool isStopped_ = false;
    bool isOutOfMemory_ = false;
    std::deque<Worker> workers_;
    std::vector<std::thread> threads_;
};

}  // namespace tarnwick
