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

// A name in the folder may hold anything; a terminal is to see no control characters.
std::string printable(std::string name) {
    std::replace_if(
        name.begin(), name.end(),
        [](char character) { return (character >= 0 && character < ' ') || character == 0x7F; },
        '?');
    return name;
}

std::string rightAligned(const std::string& text, std::size_t width) {
    return std::string(width - std::min(width, text.size()), ' ') + text;
}

void tellFile(Session& session, const std::string& folder, const std::string& name) {
    constexpr std::size_t sizeWidth = 12;
    const std::string path = folder + "/" + name;
    const auto size = session.files.fileSize(path);
    const auto changed = session.files.changeTime(path).value_or(0);
    const std::string shown = folder.substr(folder.rfind('/') + 1) + "/" + name;
    session.output.result(
        formattedTime(changed, "%Y-%m-%d %H:%M", ::localtime_r) + "  " +
            rightAligned(memoryFormatterDouble(static_cast<double>(size)), sizeWidth) + "  " +
            printable(shown),
        {{"file", shown},
         {"bytes", static_cast<std::int64_t>(size)},
         {"changed", formattedTime(changed, "%Y-%m-%dT%H:%M:%SZ", ::gmtime_r)}});
}

// False if the folder is there but cannot be read.
bool listFolder(Session& session, const std::string& folder, std::size_t& count) {
    auto names = session.files.list(folder);
    if (!names)
        return !session.files.exists(folder);
    std::sort(names->begin(), names->end());
    for (const std::string& name : *names)
        tellFile(session, folder, name);
    count += names->size();
    return true;
}

// The named items' archives; without names, every archive that is there.
std::vector<std::string> archivesOf(Session& session, const std::vector<std::string>& words) {
    std::vector<std::string> archives;
    for (const BackupItem& item : session.catalogue) {
        const bool named =
            std::find(words.begin(), words.end(), kebabCase(item.key)) != words.end();
        for (const std::string& path : item.archivePaths)
            if (named || (words.empty() && session.files.exists(path)))
                archives.push_back(path);
    }
    return archives;
}

// One archive's verdict; false unless it is whole.
bool checkArchive(Session& session, const std::string& path) {
    const std::string name = path.substr(path.rfind('/') + 1);
    const bool there = session.files.exists(path);
    const bool whole = there && session.runner.run("/usr/bin/unzip -tqq " + path) == 0;
    const std::string verdict = whole ? "good" : there ? "damaged" : "missing";
    const JsonFields fields = {{"archive", name}, {"verdict", verdict}};
    if (session.arguments.dryRun)
        return true;
    if (whole)
        session.output.result(name + ": " + verdict, fields);
    else
        session.output.problem(name + ": " + verdict, fields);
    return whole;
}

}  // namespace

ExitStatus listSafeguard(Session& session, const std::vector<std::string>&) {
    std::size_t count = 0;
    for (const std::string_view folder :
         {paths::sourcesFolder, paths::packagesFolder, paths::archiveFolder}) {
        if (listFolder(session, std::string(folder), count))
            continue;
        session.output.complaint(std::string(folder) + " cannot be read");
        return session.world.isRoot ? BackupMissing : NotRoot;
    }
    if (count == 0 && !session.arguments.json)
        session.output.result("The safeguard folder is empty.", {});
    return AllDone;
}

ExitStatus checkArchives(Session& session, const std::vector<std::string>& words) {
    const auto archives = archivesOf(session, words);
    const auto work = [&] {
        for (const std::string& archive : archives)
            if (!checkArchive(session, archive))
                session.feedback.noteProblem();
    };
    const auto report = session.perform(work, {});
    if (!report)
        return Interrupted;
    return report->hasProblem ? BackupMissing : AllDone;
}

ExitStatus tellStorage(Session& session, const std::vector<std::string>&) {
    session.options.readStorageFigures(
        [&session](const std::string& total, const std::string& free) {
            session.output.result("Total: " + total + "\nFree: " + free,
                                  {{"total", total}, {"free", free}});
        });
    return AllDone;
}

ExitStatus tellHelpTexts(Session& session, const std::vector<std::string>&) {
    bool first = true;
    for (const HelpText& text : helpTexts()) {
        session.output.result((first || session.arguments.json ? "" : "\n") + text.text,
                              {{"name", text.label}, {"text", text.text}});
        first = false;
    }
    return AllDone;
}

}  // namespace tarnwick
