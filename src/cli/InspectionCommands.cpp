#include <algorithm>
#include <ctime>

#include "cli/Commands.h"
#include "cli/Words.h"
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
    const std::string shown = folder.substr(folder.rfind('/') + 1) + "/" + name;
    session.output().result(
        formattedTime(modified, "%Y-%m-%d %H:%M", ::localtime_r) + "  " +
            rightAligned(memoryFormatterDouble(static_cast<double>(size)), sizeWidth) + "  " +
            shown,
        {{"file", shown},
         {"bytes", static_cast<std::int64_t>(size)},
         {"modified", formattedTime(modified, "%Y-%m-%dT%H:%M:%SZ", ::gmtime_r)}});
}

// Complains if a part of the safeguard folder cannot be listed. One that does not exist is empty.
bool isReadable(Session& session) {
    for (const std::string_view folder : paths::safeguardFolders) {
        if (session.files().list(folder) || !session.files().exists(folder))
            continue;
        session.output().complaint(std::string(folder) + " cannot be read");
        return false;
    }
    return true;
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

// The archives of the named items; without names, all existing archives.
std::vector<std::string> archivesOf(Session& session, const std::vector<std::string>& words) {
    std::vector<std::string> archives;
    for (const BackupItem& item : session.catalogue()) {
        const bool named =
            std::find(words.begin(), words.end(), kebabCase(item.key)) != words.end();
        for (const std::string& path : item.archivePaths())
            if (named || (words.empty() && session.files().exists(path)))
                archives.push_back(path);
    }
    return archives;
}

// Prints the archive's verdict; false unless it is whole.
bool checkArchive(Session& session, const std::string& path) {
    const std::string name = path.substr(path.rfind('/') + 1);
    const bool exists = session.files().exists(path);
    const bool whole = exists && session.runner().run("/usr/bin/unzip -tqq " + path) == 0;
    const std::string verdict = whole ? "good" : exists ? "damaged" : "missing";
    const JsonFields fields = {{"archive", name}, {"verdict", verdict}};
    if (session.arguments().dryRun)
        return true;
    if (whole)
        session.output().result(name + ": " + verdict, fields);
    else
        session.output().problem(name + ": " + verdict, fields);
    return whole;
}

}  // namespace

ExitStatus listSafeguard(Session& session, const std::vector<std::string>&) {
    if (!isReadable(session))
        return unreadable(session);
    std::size_t count = 0;
    for (const std::string_view folder :
         {paths::sourcesFolder, paths::packagesFolder, paths::archiveFolder})
        count += listFolder(session, std::string(folder));
    if (count == 0 && !session.arguments().json)
        session.output().result("The safeguard folder is empty.", {});
    return AllDone;
}

ExitStatus checkArchives(Session& session, const std::vector<std::string>& words) {
    if (!isReadable(session))
        return unreadable(session);
    const auto archives = archivesOf(session, words);
    if (archives.empty()) {
        session.output().complaint("there is no archive");
        return NotAllDone;
    }
    const auto work = [&] {
        for (const std::string& archive : archives)
            if (!checkArchive(session, archive))
                session.feedback().noteProblem();
    };
    return session.perform(work, {});
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
