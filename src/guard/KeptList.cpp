#include "guard/KeptList.h"

#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstdio>
#include <filesystem>
#include <utility>

namespace tarnwick {

namespace {

bool isList(const std::string& path) {
    struct stat status = {};
    return ::lstat(path.c_str(), &status) == 0 && S_ISREG(status.st_mode) && status.st_size > 0;
}

bool isEmpty(const std::string& path) {
    struct stat status = {};
    return ::lstat(path.c_str(), &status) == 0 && S_ISREG(status.st_mode) && status.st_size == 0;
}

}  // namespace

KeptList::KeptList(std::string path) : path_(std::move(path)), kept_(path_ + ".previous") {}

// No list of ours: something else of that name.
void KeptList::makeRoom() const {
    std::error_code ignored;
    if (!isList(kept_))
        std::filesystem::remove_all(kept_, ignored);
}

bool KeptList::keep() const {
    makeRoom();
    return !isList(path_) || ::link(path_.c_str(), kept_.c_str()) == 0 || errno == EEXIST;
}

bool KeptList::moveAside() const {
    makeRoom();
    if (isList(path_))
        return ::rename(path_.c_str(), kept_.c_str()) == 0;
    return ::unlink(path_.c_str()) == 0 || errno == ENOENT;
}

bool KeptList::settle(bool isWhole) const {
    if (isWhole && isList(path_)) {
        ::unlink(kept_.c_str());
        return false;
    }
    if (recover())
        return true;
    if (!isWhole && isEmpty(path_))
        ::unlink(path_.c_str());
    return false;
}

bool KeptList::recover() const {
    return isList(kept_) && ::rename(kept_.c_str(), path_.c_str()) == 0;
}

std::string textOfRecovery(std::string_view list) {
    return std::string(list) + " could not be saved; the earlier one is still there";
}

}  // namespace tarnwick
