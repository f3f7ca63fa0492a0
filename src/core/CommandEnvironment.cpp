#include "core/CommandEnvironment.h"

#include <fcntl.h>
#include <unistd.h>

#include <csignal>
#include <cstdlib>
#include <filesystem>
#include <initializer_list>
#include <string>

namespace tarnwick {

void fillStandardDescriptors() {
    // A new descriptor takes the lowest free number, so this fills the gaps.
    int descriptor = 0;
    while (descriptor >= 0 && descriptor <= STDERR_FILENO)
        descriptor = ::open("/dev/null", O_RDWR);
    if (descriptor > STDERR_FILENO)
        ::close(descriptor);
}

namespace {

constexpr char usualPath[] = "/usr/local/sbin:/usr/local/bin:/usr/sbin:/usr/bin:/sbin:/bin";

// Where the tools are that commands find before the system's: beside an installed window program,
// else in the `libexec` of the folder tree that the program was installed or built in. Not taken
// from the environment, which may be somebody else's.
std::filesystem::path ownTools() {
    std::error_code error;
    const auto folder = std::filesystem::read_symlink("/proc/self/exe", error).parent_path();
    for (const auto& tools : {folder / "bin", folder.parent_path() / "libexec/tarnwick/bin"}) {
        if (std::filesystem::exists(tools / "zip", error))
            return tools;
    }
    return {};
}

void putOwnToolsFirst() {
    const std::string tools = ownTools().string();
    const char* const path = std::getenv("PATH");
    if (!tools.empty())
        ::setenv("PATH", (tools + ":" + (path != nullptr ? path : usualPath)).c_str(), 1);
}

}  // namespace

bool prepareForCommands() {
    fillStandardDescriptors();
    // Commands inherit this: a reader that goes away must not stop them half-way.
    std::signal(SIGPIPE, SIG_IGN);
    // A limit to the size of files is an error like a full disk.
    std::signal(SIGXFSZ, SIG_IGN);
    // Options that the caller set for these tools could make archives that no restore can use.
    for (const char* options : {"ZIP", "ZIPOPT", "UNZIP", "UNZIPOPT", "ZIPINFO", "ZIPINFOOPT"})
        ::unsetenv(options);
    putOwnToolsFirst();
    // One copy line has a relative target.
    return ::chdir("/") == 0;
}

}  // namespace tarnwick
