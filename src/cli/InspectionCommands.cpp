#include <sys/wait.h>

#include <algorithm>
#include <cerrno>
#include <ctime>

#include "cli/Commands.h"
#include "cli/QuotedName.h"
#include "cli/SavedThings.h"
#include "cli/Words.h"
#include "core/JoinedText.h"
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

std::string sizeText(std::int64_t bytes) {
    return memoryFormatterDouble(static_cast<double>(bytes));
}

std::string rightAligned(const std::string& text, std::size_t width) {
    return std::string(width - std::min(width, text.size()), ' ') + text;
}

constexpr std::size_t sizeWidth = 12;
constexpr std::size_t dateWidth = 16;

// The word of what the file is a copy of; empty if it is of nothing.
std::string wordOfCopy(const std::vector<SavedThing>& things, const std::string& path) {
    const auto found = std::ranges::find_if(things, [&path](const SavedThing& thing) {
        return std::ranges::count(thing.copies, path) > 0;
    });
    return found == things.end() ? std::string() : found->word;
}

// Files and their bytes.
struct Total {
    std::int64_t files = 0;
    std::int64_t bytes = 0;
};

void showBrokenLink(Session& session, const std::string& shown) {
    session.output().result(std::string(dateWidth, ' ') + "  " +
                                rightAligned("broken link", sizeWidth) + "  " + quotedName(shown),
                            {{"file", shown}, {"link", "broken"}});
}

void showFile(Session& session, const std::vector<SavedThing>& things, const std::string& path,
              const std::string& shown) {
    const auto size = static_cast<std::int64_t>(session.files().fileSize(path));
    const auto modified = session.files().modificationTime(path).value_or(0);
    JsonFields fields = {{"file", shown},
                         {"bytes", size},
                         {"modified", formattedTime(modified, "%Y-%m-%dT%H:%M:%SZ", ::gmtime_r)}};
    if (const std::string word = wordOfCopy(things, path); !word.empty())
        fields.emplace_back("item", word);
    session.output().result(formattedTime(modified, "%Y-%m-%d %H:%M", ::localtime_r) + "  " +
                                rightAligned(sizeText(size), sizeWidth) + "  " + quotedName(shown),
                            fields);
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

void listFolder(Session& session, const std::vector<SavedThing>& things, const std::string& folder,
                Total& total) {
    auto names = session.files().list(folder).value_or(std::vector<std::string>{});
    std::sort(names.begin(), names.end());
    for (const std::string& name : names) {
        const std::string path = folder + "/" + name;
        const std::string shown = paths::nameOf(folder) + "/" + name;
        ++total.files;
        total.bytes += static_cast<std::int64_t>(session.files().fileSize(path));
        if (session.files().exists(path))
            showFile(session, things, path, shown);
        else
            showBrokenLink(session, shown);
    }
}

void showTotal(Session& session, const std::vector<SavedThing>& things, const Total& total) {
    std::vector<std::string> missing;
    for (const SavedThing& thing : things)
        if (!hasEveryCopy(session.files(), thing))
            missing.push_back(thing.word);
    std::string text = "The safeguard folder is empty.";
    if (total.files > 0) {
        text = rightAligned(sizeText(total.bytes), dateWidth + 2 + sizeWidth) + "  in all";
        if (!missing.empty())
            text += "\nNot saved: " + joined(missing, ", ");
    }
    session.output().result(
        text, {{"files", total.files}, {"totalBytes", total.bytes}, {"notSaved", missing}});
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
    const auto things =
        savedThings(session.files(), session.catalogue(), {sourcesWord, packagesWord, everyItem});
    Total total;
    for (const std::string_view folder :
         {paths::sourcesFolder, paths::packagesFolder, paths::archiveFolder})
        listFolder(session, things, std::string(folder), total);
    if (!readable)
        return unreadable(session);
    showTotal(session, things, total);
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
    session.options().readStorageFigures([&session](const std::string& total,
                                                    const std::string& free) {
        const FileReader& files = session.files();
        session.output().result("Total: " + total + "\nFree: " + free,
                                {{"totalBytes", files.fileSystemSize(paths::userPartition)},
                                 {"freeBytes", files.fileSystemFreeSize(paths::userPartition)}});
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
