#include <algorithm>
#include <array>
#include <cerrno>
#include <utility>

#include "cli/Commands.h"
#include "cli/QuotedName.h"
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
    {"same", "the same", "sameFiles", "stays"},
    {"changed", "changed since the save", "changedFiles", "would be overwritten"},
    {"not saved", "not saved", "unsavedFiles", "stays"},
    {"only in the archive", "only in the archive", "archivedFiles", "would come back"},
    {"unreadable", "unreadable", "unreadableFiles", "stays"},
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
    session.output().result(std::string(words.word) + "  " + quotedName(file.path) + "  " + effect,
                            {{"item", kebabCase(item.key)},
                             {"archive", archive},
                             {"path", file.path},
                             {"kind", file.isFolder() ? "folder" : "file"},
                             {"bytes", static_cast<std::int64_t>(file.size)},
                             {"archivedBytes", static_cast<std::int64_t>(file.archivedSize)},
                             {"state", words.word},
                             {"effect", effect}});
}

// Of an archive that is not there or cannot be read.
std::string textOfError(const ArchiveComparison& comparison) {
    const std::string name = paths::nameOf(comparison.archive);
    if (comparison.archiveError == ENOENT)
        return name + " is missing";
    if (comparison.archiveError == EILSEQ)
        return name + " is damaged";
    return failureText(name, "read", comparison.archiveError);
}

bool isMissing(const ArchiveComparison& comparison) {
    return comparison.archiveError == ENOENT;
}

// The line of an item, of all its archives.
class Summary {
public:
    explicit Summary(std::string word) : word_(std::move(word)) {}

    void add(const ArchiveComparison& comparison) {
        const auto counts = comparison.counts();
        for (std::size_t state = 0; state < fileStates; ++state)
            counts_[state] += counts[state];
        if (isMissing(comparison) && comparison.hasSource)
            missing_.push_back(textOfError(comparison));
        isUnknown_ = isUnknown_ || (comparison.archiveError != 0 && !isMissing(comparison));
    }

    bool hasUnreadable() const {
        return counts_[static_cast<std::size_t>(FileState::Unreadable)] > 0;
    }

    void tell(Output& output) const {
        std::vector<std::string> parts;
        JsonFields fields = {{"item", word_}};
        for (std::size_t state = 0; state < fileStates; ++state) {
            fields.emplace_back(wordsOfStates[state].key,
                                static_cast<std::int64_t>(counts_[state]));
            if (counts_[state] > 0)
                parts.push_back(std::to_string(counts_[state]) + " " + wordsOfStates[state].ofMany);
        }
        parts.insert(parts.end(), missing_.begin(), missing_.end());
        if (parts.empty() && isUnknown_)
            return;
        output.result(word_ + ": " + (parts.empty() ? "nothing to save" : joined(parts, ", ")),
                      fields);
    }

private:
    const std::string word_;
    std::array<std::size_t, fileStates> counts_ = {};
    std::vector<std::string> missing_;
    bool isUnknown_ = false;  // as an archive could not be read
};

void compareItem(Session& session, const BackupItem& item) {
    session.feedback().begin(kebabCase(item.key));
    Summary summary(kebabCase(item.key));
    for (const ArchiveComparison& comparison : compare(item, session.world().root)) {
        if (comparison.archiveError != 0 && !isMissing(comparison))
            session.report(kebabCase(item.key) + ": " + textOfError(comparison));
        else if (session.arguments().verbose || session.arguments().json)
            for (const ComparedFile& file : comparison.files)
                tellFile(session, item, paths::nameOf(comparison.archive), file);
        summary.add(comparison);
    }
    summary.tell(session.output());
    if (summary.hasUnreadable())
        session.feedback().noteProblem();
}

}  // namespace

ExitStatus compareFiles(Session& session, const std::vector<std::string>& words) {
    const auto work = [&] {
        for (const BackupItem& item : session.catalogue())
            if (words.empty() || std::ranges::find(words, kebabCase(item.key)) != words.end())
                compareItem(session, item);
    };
    return session.perform({.work = work});
}

}  // namespace tarnwick
