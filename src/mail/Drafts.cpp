#include "mail/Drafts.h"

#include <fcntl.h>
#include <sys/fsuid.h>
#include <sys/stat.h>
#include <unistd.h>

#include <atomic>
#include <cerrno>
#include <cstring>

#include "core/Descriptor.h"
#include "core/WriteAll.h"

namespace tarnwick {

namespace {

constexpr mode_t onlyOwnersFolder = 0700;
constexpr mode_t onlyOwnersFile = 0600;

// Of a message that was not sent.
constexpr const char* draftFlag = ":2,D";

// While it exists, this thread uses files with the rights of another user. Has no effect without
// root.
class RightsOf {
public:
    explicit RightsOf(const struct stat& owned)
        : group_(::setfsgid(owned.st_gid)), user_(::setfsuid(owned.st_uid)) {}
    RightsOf(const RightsOf&) = delete;
    RightsOf& operator=(const RightsOf&) = delete;
    ~RightsOf() {
        ::setfsuid(static_cast<uid_t>(user_));
        ::setfsgid(static_cast<gid_t>(group_));
    }

private:
    int group_;
    int user_;
};

bool isFolder(const std::string& path) {
    struct stat status = {};
    return ::stat(path.c_str(), &status) == 0 && S_ISDIR(status.st_mode);
}

// With the folders between.
bool makeFolder(const std::string& path) {
    if (isFolder(path))
        return true;
    const std::size_t slash = path.rfind('/');
    if (slash != std::string::npos && slash > 0 && !makeFolder(path.substr(0, slash)))
        return false;
    return ::mkdir(path.c_str(), onlyOwnersFolder) == 0 || errno == EEXIST;
}

bool makeMailFolder(const std::string& folder) {
    for (const char* part : {"/tmp", "/new", "/cur"})
        if (!makeFolder(folder + part))
            return false;
    return true;
}

// Unique among all programs and machines.
std::string uniqueName(std::time_t now) {
    static std::atomic<unsigned> count = 0;
    char host[256] = {};
    ::gethostname(host, sizeof host - 1);
    return std::to_string(now) + ".P" + std::to_string(::getpid()) + "Q" + std::to_string(++count) +
           "." + host;
}

bool writeNewFile(const std::string& path, const std::string& text) {
    const Descriptor file(
        ::open(path.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, onlyOwnersFile));
    return file.isOpen() && writeAll(file.number(), text) && ::fsync(file.number()) == 0;
}

std::string notKept(const std::string& folder) {
    return "The draft cannot be kept in " + folder + ": " + std::strerror(errno) + ".";
}

}  // namespace

std::optional<std::string> keepDraft(const std::string& message, std::time_t now,
                                     const DraftPlace& place) {
    const std::string folder = place.home + "/" + place.folder;
    struct stat home = {};
    if (::stat(place.home.c_str(), &home) != 0)
        return notKept(folder);
    const RightsOf owner(home);
    const std::string name = uniqueName(now);
    const std::string temporary = folder + "/tmp/" + name;
    if (!makeMailFolder(folder))
        return notKept(folder);
    if (writeNewFile(temporary, message) &&
        ::rename(temporary.c_str(), (folder + "/cur/" + name + draftFlag).c_str()) == 0)
        return std::nullopt;
    auto fault = notKept(folder);
    ::unlink(temporary.c_str());
    return fault;
}

}  // namespace tarnwick
