#include "cli/SafeguardState.h"

#include <sys/wait.h>

#include <cerrno>
#include <string_view>

#include "core/Reasons.h"
#include "core/SafeguardPaths.h"

namespace tarnwick {

namespace {

// What the status of unzip says about an archive. It is not the archive's fault if unzip cannot be
// started, was killed, or lacks memory.
std::string verdictOf(int status) {
    constexpr int worstWarning = 1;
    constexpr int firstMemoryError = 4;
    constexpr int lastMemoryError = 8;
    constexpr int cannotBeStarted = 126;
    const int code = WEXITSTATUS(status);
    if (!WIFEXITED(status) || code >= cannotBeStarted ||
        (code >= firstMemoryError && code <= lastMemoryError))
        return "cannot be tested";
    return code <= worstWarning ? "good" : "damaged";
}

}  // namespace

bool isReadable(Session& session) {
    bool readable = true;
    for (const std::string_view folder : paths::safeguardFolders) {
        if (session.files().list(folder) || errno == ENOENT)
            continue;
        session.output().complaint(failureText(folder, "read", errno));
        readable = false;
    }
    return readable;
}

ExitStatus unreadable(const Session& session) {
    return session.world().isRoot ? NotAllDone : NotRoot;
}

std::string verdictOn(Session& session, const std::string& archive) {
    if (!session.files().exists(archive))
        return "missing";
    if (!session.files().isReadable(archive))
        return "cannot be tested";
    return verdictOf(session.archiveTester().run("/usr/bin/unzip -tqq " + archive));
}

}  // namespace tarnwick
