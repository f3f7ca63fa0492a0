#include "launcher/CallersFiles.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cstdlib>
#include <optional>

#include "core/Descriptor.h"
#include "core/WriteAll.h"

namespace tarnwick {

namespace {

const std::string ownFolder = "/run/tarnwick";
constexpr off_t longestKey = 65536;  // bytes

// While it exists, files are opened with the rights of the caller.
class AsCaller {
public:
    AsCaller() {
        if (::seteuid(::getuid()) != 0)
            std::abort();
    }
    ~AsCaller() {
        if (::seteuid(0) != 0)
            std::abort();
    }
    AsCaller(const AsCaller&) = delete;
    AsCaller& operator=(const AsCaller&) = delete;
};

bool belongsTo(uid_t user, const std::string& folder) {
    struct stat status = {};
    return ::lstat(folder.c_str(), &status) == 0 && S_ISDIR(status.st_mode) &&
           status.st_uid == user;
}

// Its parent can be changed by root only.
bool makeOwnFolder() {
    ::mkdir(ownFolder.c_str(), S_IRWXU);
    return belongsTo(0, ownFolder);
}

// Null unless it is a regular file of at most the size of a key.
std::optional<std::string> contentForCaller(const std::string& path) {
    const AsCaller caller;
    const Descriptor file(
        ::open(path.c_str(), O_RDONLY | O_NOFOLLOW | O_NONBLOCK | O_NOCTTY | O_CLOEXEC));
    struct stat status = {};
    if (::fstat(file.number(), &status) != 0 || !S_ISREG(status.st_mode) ||
        status.st_size > longestKey)
        return std::nullopt;
    std::string content(static_cast<std::size_t>(status.st_size), '\0');
    const ssize_t length = ::read(file.number(), content.data(), content.size());
    return length == status.st_size ? std::optional(content) : std::nullopt;
}

// Replaces the file at once; after a failure the old one is still there.
bool write(const std::string& path, const std::string& content) {
    std::string unfinished = path + ".XXXXXX";
    const Descriptor file(::mkostemp(unfinished.data(), O_CLOEXEC));
    if (!file.isOpen())
        return false;
    if (writeAll(file.number(), content) && ::rename(unfinished.c_str(), path.c_str()) == 0)
        return true;
    ::unlink(unfinished.c_str());
    return false;
}

std::string take(Environment& environment, const std::string& name) {
    const auto variable = environment.extract(name);
    return variable ? variable.mapped() : std::string();
}

}  // namespace

void replaceCallersFiles(Environment& environment) {
    const std::string runtimeFolder = take(environment, "XDG_RUNTIME_DIR");
    const std::string display = take(environment, "WAYLAND_DISPLAY");
    if (!display.empty() && belongsTo(::getuid(), runtimeFolder))
        environment["WAYLAND_DISPLAY"] = runtimeFolder + "/" + display;

    const auto key = contentForCaller(take(environment, "XAUTHORITY"));
    if (!makeOwnFolder())
        return;
    environment["XDG_RUNTIME_DIR"] = ownFolder;
    const std::string copy = ownFolder + "/Xauthority-" + std::to_string(::getuid());
    if (key && write(copy, *key))
        environment["XAUTHORITY"] = copy;
}

}  // namespace tarnwick
