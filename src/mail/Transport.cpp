#include "mail/Transport.h"

#include <poll.h>
#include <spawn.h>
#include <sys/mman.h>
#include <sys/syscall.h>
#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <csignal>
#include <cstring>

#include "core/Descriptor.h"
#include "core/WriteAll.h"

namespace tarnwick {

namespace {

// Recipients come from the message, and a line with a single dot does not end it.
constexpr const char* recipientsOption = "-t";
constexpr const char* dotOption = "-oi";

// A program that may have more rights than the caller gets nothing of the caller's environment.
constexpr const char* searchPath =
    "PATH=/usr/local/sbin:/usr/local/bin:/usr/sbin:/usr/bin:/sbin:/bin";

// A file without a name. With files rather than pipes, no side waits for the other, and nothing
// that the mailer prints is lost.
class MemoryFile {
public:
    explicit MemoryFile(const char* name) : file_(::memfd_create(name, MFD_CLOEXEC)) {}

    int number() const { return file_.number(); }

    bool fill(const std::string& text) const {
        return writeAll(number(), text) && ::lseek(number(), 0, SEEK_SET) == 0;
    }

    std::string start() const {
        std::array<char, 2000> text{};
        const ssize_t count = ::pread(number(), text.data(), text.size(), 0);
        return {text.data(), static_cast<std::size_t>(count > 0 ? count : 0)};
    }

private:
    Descriptor file_;
};

// What the mailer printed first; empty if it printed nothing.
std::string firstLine(const std::string& text) {
    return text.substr(0, text.find_first_of("\r\n"));
}

// Returns the error of posix_spawn, 0 on success.
int spawn(pid_t& process, const std::string& program, const MemoryFile& message,
          const MemoryFile& said) {
    posix_spawn_file_actions_t streams;
    ::posix_spawn_file_actions_init(&streams);
    ::posix_spawn_file_actions_adddup2(&streams, message.number(), STDIN_FILENO);
    ::posix_spawn_file_actions_adddup2(&streams, said.number(), STDOUT_FILENO);
    ::posix_spawn_file_actions_adddup2(&streams, said.number(), STDERR_FILENO);
    const std::array<const char*, 4> words = {program.c_str(), recipientsOption, dotOption,
                                              nullptr};
    const std::array<const char*, 2> environment = {searchPath, nullptr};
    const int error = ::posix_spawn(&process, program.c_str(), &streams, nullptr,
                                    const_cast<char* const*>(words.data()),
                                    const_cast<char* const*>(environment.data()));
    ::posix_spawn_file_actions_destroy(&streams);
    return error;
}

// Also true where the system cannot tell; the caller then waits without a limit.
bool endsWithin(pid_t process, std::chrono::milliseconds limit) {
    const Descriptor end(static_cast<int>(::syscall(SYS_pidfd_open, process, 0)));
    if (!end.isOpen())
        return true;
    struct pollfd awaited = {.fd = end.number(), .events = POLLIN, .revents = 0};
    return ::poll(&awaited, 1, static_cast<int>(limit.count())) != 0;
}

// The status as wait() reports it; null if it is not available.
std::optional<int> endOf(pid_t process) {
    int status = 0;
    while (::waitpid(process, &status, 0) < 0)
        if (errno != EINTR)
            return std::nullopt;
    return status;
}

std::string notStarted(const std::string& program, int error) {
    if (error == ENOENT)
        return "There is no mailer at " + program + ".";
    return "The mailer " + program + " cannot be started: " + std::strerror(error) + ".";
}

std::string refusal(const std::string& program, int status, const std::string& words) {
    if (WIFSIGNALED(status))
        return "The mailer " + program + " was ended by signal " +
               std::to_string(WTERMSIG(status)) + ".";
    return "The mailer " + program + " ended with status " + std::to_string(WEXITSTATUS(status)) +
           (words.empty() ? "." : ": " + words);
}

}  // namespace

bool isInstalled(const std::string& program) {
    return ::access(program.c_str(), X_OK) == 0;
}

std::string mailerLine(const std::string& program) {
    return program + " " + recipientsOption + " " + dotOption;
}

std::optional<std::string> handToMailer(const std::string& message, const std::string& program,
                                        std::chrono::milliseconds limit) {
    const MemoryFile file("message");
    const MemoryFile said("mailer's words");
    if (!file.fill(message))
        return "The mail does not fit into memory.";
    pid_t process = 0;
    if (const int error = spawn(process, program, file, said))
        return notStarted(program, error);
    const bool inTime = endsWithin(process, limit);
    if (!inTime)
        ::kill(process, SIGKILL);
    const auto status = endOf(process);
    if (!inTime)
        return "The mailer " + program + " took too long.";
    if (!status)
        return "How the mailer " + program + " ended is not known.";
    if (*status == 0)
        return std::nullopt;
    return refusal(program, *status, firstLine(said.start()));
}

}  // namespace tarnwick
