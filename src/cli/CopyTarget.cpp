#include "cli/CopyTarget.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cstdio>
#include <cstdlib>
#include <utility>

namespace tarnwick {

namespace {

bool isSpecial(const std::string& path) {
    struct stat status = {};
    return ::stat(path.c_str(), &status) == 0 && !S_ISREG(status.st_mode);
}

}  // namespace

CopyTarget::CopyTarget(std::string path)
    : path_(std::move(path)),
      temporary_(isSpecial(path_) ? "" : path_ + ".XXXXXX"),
      file_(temporary_.empty() ? ::open(path_.c_str(), O_WRONLY | O_CLOEXEC)
                               : ::mkostemp(temporary_.data(), O_CLOEXEC)) {}

CopyTarget::~CopyTarget() {
    if (!temporary_.empty() && file_.isOpen())
        ::unlink(temporary_.c_str());
}

bool CopyTarget::putInPlace() const {
    return temporary_.empty() ||
           (::fsync(file_.number()) == 0 && ::rename(temporary_.c_str(), path_.c_str()) == 0);
}

}  // namespace tarnwick
