#include <algorithm>
#include <cerrno>

#include "cli/Commands.h"
#include "cli/Words.h"
#include "compare/Comparison.h"
#include "core/JoinedText.h"
#include "core/Reasons.h"
#include "core/SafeguardPaths.h"

namespace tarnwick {

namespace {

// What is said of the files of a state: in a line of its own, in the line of the item, as the name
// of their number, and what a restore does about them.
struct StateWords {
    const char* word;
    const char* ofMany;
    const char* key;
    const char* effect;
};

constexpr StateWords wordsOfStates[fileStates] = {
    {"same", "the same", "same", "stays"},
    {"changed", "changed since the save", "changed", "would be overwritten"},
    {"not saved", "not saved", "notSaved", "stays"},
    {"only in the archive", "only in the archive", "onlyArchived", "would come back"},
    {"unreadable", "unreadable", "unreadable", "stays"},
};

const StateWords& wordsOf(FileState state) {
    return wordsOfStates[static_cast<std::size_t>(state)];
}

// Whether the restore looks for the folder where the save puts it.
bool comesBack(const BackupItem& item) {
    return std::ranges::any_of(item.restoreCommands, [&](const std::string& line) {
        return line.starts_with("/bin/cp -R /var/tmp" + item.stagingPaths.front());
    });
}

void tellFile(Session& session, const BackupItem& item, const std::string& archive,
              const ComparedFile& file) {
    const auto& words = wordsOf(file.state);
    const std::string effect = comesBack(item) ? words.effect : "no restore changes it";
    session.output().result(std::string(words.word) + "  " + file.path + "  " + effect,
                            {{"item", kebabCase(item.key)},
                             {"archive", archive},
                             {"path", file.path},
                             {"kind", file.isFolder() ? "folder" : "file"},
                             {"bytes", static_cast<std::int64_t>(file.size)},
                             {"archivedBytes", static_cast<std::int64_t>(file.archivedSize)},
                             {"state", words.word},
                             {"effect", effect}});
}

// Of an archive that is not there, or cannot be read.
std::string textOfError(const ArchiveComparison& comparison) {
    const std::string name = paths::nameOf(comparison.archive);
    if (comparison.archiveError == ENOENT)
        return name + " is missing";
    if (comparison.archiveError == EILSEQ)
        return name + " is damaged";
    return failureText(name, "read", comparison.archiveError);
}

void tellSummary(Session& session, const BackupItem& item, const ArchiveComparison& comparison) {
    const auto counts = comparison.counts();
    std::vector<std::string> parts;
    JsonFields fields = {{"item", kebabCase(item.key)},
                         {"archive", paths::nameOf(comparison.archive)}};
    for (std::size_t state = 0; state < fileStates; ++state) {
        fields.emplace_back(wordsOfStates[state].key, static_cast<std::int64_t>(counts[state]));
        if (counts[state] > 0)
            parts.push_back(std::to_string(counts[state]) + " " + wordsOfStates[state].ofMany);
    }
    if (comparison.archiveError != 0)
        parts.push_back(textOfError(comparison));
    const std::string name = item.archives.size() == 1
                                 ? kebabCase(item.key)
                                 : kebabCase(item.key) + ", " + paths::nameOf(comparison.archive);
    session.output().result(name + ": " + (parts.empty() ? "nothing" : joined(parts, ", ")),
                            fields);
}

void tell(Session& session, const BackupItem& item, const ArchiveComparison& comparison) {
    const bool isMissing = comparison.archiveError == ENOENT;
    const bool isUnneeded = isMissing && !comparison.hasSource;
    if (comparison.archiveError != 0 && !isMissing) {
        session.report(kebabCase(item.key) + ": " + textOfError(comparison));
        return;
    }
    if (session.arguments().verbose || session.arguments().json)
        for (const ComparedFile& file : comparison.files)
            tellFile(session, item, paths::nameOf(comparison.archive), file);
    if (isUnneeded)
        session.output().result(kebabCase(item.key) + ": nothing to save",
                                {{"item", kebabCase(item.key)}});
    else
        tellSummary(session, item, comparison);
    if (comparison.counts()[static_cast<std::size_t>(FileState::Unreadable)] > 0)
        session.feedback().noteProblem();
}

}  // namespace

ExitStatus compareFiles(Session& session, const std::vector<std::string>& words) {
    const auto work = [&] {
        for (const BackupItem& item : session.catalogue())
            if (words.empty() || std::ranges::find(words, kebabCase(item.key)) != words.end())
                for (const ArchiveComparison& comparison : compare(item, session.world().root))
                    tell(session, item, comparison);
    };
    return session.perform({.work = work});
}

}  // namespace tarnwick
