#pragma once

#include <optional>
#include <string>

#include "core/Descriptor.h"

namespace tarnwick {

// A new file that stands beside the one it is to replace until it is whole. An interrupt, hang-up
// or request to end removes it and ends the process. One at a time.
class UnfinishedFile {
public:
    // For the file at this path; see `isOpen`.
    explicit UnfinishedFile(std::string target);
    // Removes it unless it was put in place.
    ~UnfinishedFile();
    UnfinishedFile(const UnfinishedFile&) = delete;
    UnfinishedFile& operator=(const UnfinishedFile&) = delete;

    bool isOpen() const { return file_.isOpen(); }
    int number() const { return file_.number(); }

    // Gives it the owner and mode of the file that it replaces, writes it to the disk and puts it
    // in place at once. `oldName` is what the file that stood there is called from then on, if it
    // is to be kept. Returns false, with errno set, if the old file is still in place.
    bool putInPlace(const std::optional<std::string>& oldName);

    // Removes what killed processes left in the folder.
    static void removeStrays(const std::string& folder);

private:
    const std::string target_;
    const std::string path_;
    const Descriptor file_;
};

}  // namespace tarnwick
