#pragma once

#include <optional>
#include <string>

namespace tarnwick {

// A new file that stands beside the one it is to replace until it is whole, readable by its owner
// only. While it exists, no other process works on the same target. An interrupt, hang-up or
// request to end removes it and ends the process. One at a time.
class UnfinishedFile {
public:
    // Waits for another process that works on the target.
    explicit UnfinishedFile(std::string target);
    // Removes it unless it was put in place.
    ~UnfinishedFile();
    UnfinishedFile(const UnfinishedFile&) = delete;
    UnfinishedFile& operator=(const UnfinishedFile&) = delete;

    // 0, or errno of what kept it from being made.
    int error() const { return error_; }
    int number() const { return number_; }
    const std::string& path() const { return path_; }

    // Writes it to the disk and puts it in the target's place at once. The file that stood there is
    // called `oldName` from then on, if it is to be kept. Returns false, with errno set, if the old
    // file still stands there.
    bool putInPlace(const std::optional<std::string>& oldName);

    // Removes what killed processes left in the folder.
    static void removeStrays(const std::string& folder);

private:
    bool open();
    bool rename(const std::optional<std::string>& oldName) const;

    const std::string target_;
    const std::string path_;
    int number_ = -1;
    int error_ = 0;
};

}  // namespace tarnwick
