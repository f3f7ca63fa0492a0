#include <sys/wait.h>

#include <algorithm>
#include <cerrno>
#include <ctime>

#include "cli/Commands.h"
#include "cli/Words.h"
#include "core/Reasons.h"
#include "core/SafeguardPaths.h"
#include "help/HelpTexts.h"
#include "options/SizeFormatters.h"

namespace tarnwick {

namespace {

std::string formattedTime(std::time_t time, const char* format,
                          std::tm* (*fields)(const std::time_t*, std::tm*)) {
    std::tm parts = {};
    char text[32];
    fields(&time, &parts);
    return std::string(text, std::strftime(text, sizeof text, format, &parts));
}

std::string rightAligned(const std::string& text, std::size_t width) {
    return std::string(width - std::min(width, text.size()), ' ') + text;
}

void showFile(Session& session, const std::string& folder, const std::string& name) {
    constexpr std::size_t sizeWidth = 12;
    const std::string path = folder + "/" + name;
    const auto size = session.files().fileSize(path);
    const auto modified = session.files().modificationTime(path).value_or(0);
    const std::string shown = paths::nameOf(folder) + "/" + name;
    session.output().result(
        formattedTime(modified, "%Y-%m-%d %H:%M", ::localtime_r) + "  " +
            rightAligned(memoryFormatterDouble(static_cast<double>(size)), sizeWidth) + "  " +
            shown,
        {{"file", shown},
         {"bytes", static_cast<std::int64_t>(size)},
         {"modified", formattedTime(modified, "%Y-%m-%dT%H:%M:%SZ", ::gmtime_r)}});
}

// Complains of each part of the safeguard folder that cannot be listed. One that does not exist is
// empty.
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

// Returns the number of files.
std::size_t listFolder(Session& session, const std::string& folder) {
    auto names = session.files().list(folder).value_or(std::vector<std::string>{});
    std::sort(names.begin(), names.end());
    for (const std::string& name : names)
        showFile(session, folder, name);
    return names.size();
}

// The archives of the named items; without names, of all.
std::vector<std::string> archivesOf(Session& session, const std::vector<std::string>& words) {
    std::vector<std::string> archives;
    for (const BackupItem& item : session.catalogue()) {
        const bool named =
            std::find(words.begin(), words.end(), kebabCase(item.key)) != words.end();
        for (const std::string& path : item.archivePaths())
            if (named || words.empty())
                archives.push_back(path);
    }
    return archives;
}

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

std::string verdictOn(Session& session, const std::string& path) {
    if (!session.files().exists(path))
        return "missing";
    if (!session.files().isReadable(path))
        return "cannot be tested";
    return verdictOf(session.archiveTester().run("/usr/bin/unzip -tqq " + path));
}

// Prints the archive's verdict.
void checkArchive(Session& session, const std::string& path) {
    const std::string name = paths::nameOf(path);
    const std::string verdict = verdictOn(session, path);
    const JsonFields fields = {{"archive", name}, {"verdict", verdict}};
    if (session.arguments().dryRun)
        return;
    if (verdict == "good") {
        session.output().result(name + ": " + verdict, fields);
        return;
    }
    session.output().problem(name + ": " + verdict, fields);
    session.feedback().noteProblem();
}

}  // namespace

ExitStatus listSafeguard(Session& session, const std::vector<std::string>&) {
    const bool readable = isReadable(session);
    std::size_t count = 0;
    for (const std::string_view folder :
         {paths::sourcesFolder, paths::packagesFolder, paths::archiveFolder})
        count += listFolder(session, std::string(folder));
    if (!readable)
        return unreadable(session);
    if (count == 0 && !session.arguments().json)
        session.output().result("The safeguard folder is empty.", {});
    return AllDone;
}

ExitStatus checkArchives(Session& session, const std::vector<std::string>& words) {
    const bool readable = isReadable(session);
    const auto archives = archivesOf(session, words);
    const auto work = [&] {
        for (const std::string& archive : archives)
            checkArchive(session, archive);
    };
    const ExitStatus status = session.perform({.work = work});
    return readable ? status : unreadable(session);
}

ExitStatus showStorage(Session& session, const std::vector<std::string>&) {
    session.options().readStorageFigures(
        [&session](const std::string& total, const std::string& free) {
            session.output().result("Total: " + total + "\nFree: " + free,
                                    {{"total", total}, {"free", free}});
        });
    return AllDone;
}

ExitStatus showHelpTexts(Session& session, const std::vector<std::string>&) {
    bool first = true;
    for (const HelpText& text : helpTexts()) {
        session.output().result((first || session.arguments().json ? "" : "\n") + text.text,
                                {{"name", text.label}, {"text", text.text}});
        first = false;
    }
    return AllDone;
}

}  // namespace tarnwick
