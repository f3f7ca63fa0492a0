#pragma once

#include <string>

#include "core/Descriptor.h"

namespace tarnwick {

// The file that a copy is written to. It has another name until the copy is there as far as it
// will be; a pipe or a device is written to as it is.
class CopyTarget {
public:
    explicit CopyTarget(std::string path);
    // Removes what did not get its name.
    ~CopyTarget();
    CopyTarget(const CopyTarget&) = delete;
    CopyTarget& operator=(const CopyTarget&) = delete;

    // Below 0, with errno set, if it could not be opened.
    int number() const { return file_.number(); }
    // Returns false, with errno set, if there is no new file under the name.
    bool putInPlace() const;

private:
    const std::string path_;
    std::string temporary_;  // empty if there is no other name
    const Descriptor file_;
};

}  // namespace tarnwick
