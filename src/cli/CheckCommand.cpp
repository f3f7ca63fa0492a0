#include <algorithm>
#include <array>

#include "cli/Commands.h"
#include "cli/SafeguardState.h"
#include "cli/Words.h"
#include "compare/Comparison.h"
#include "compare/SavedLists.h"
#include "core/JoinedText.h"
#include "core/SafeguardPaths.h"

namespace tarnwick {

namespace {

using Words = std::vector<std::string>;

bool isNamed(const BackupItem& item, const Words& words) {
    return words.empty() || std::ranges::find(words, kebabCase(item.key)) != words.end();
}

// Tests an archive and prints the verdict.
void testArchive(Session& session, const std::string& path) {
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

void testArchives(Session& session, const Words& words) {
    for (const BackupItem& item : session.catalogue())
        if (isNamed(item, words))
            for (const std::string& archive : item.archivePaths())
                testArchive(session, archive);
}

std::string countText(std::size_t count, const std::string& what) {
    return count == 0 ? "" : std::to_string(count) + " " + what;
}

// Whether everything that is on the device is in archives and lists that are whole. What is good is
// told at once, what is not at the end.
class WipeCheck {
public:
    explicit WipeCheck(Session& session) : session_(session) {}

    void check(const BackupItem& item) {
        session_.feedback().working(item);
        const std::size_t before = problems_.size();
        bool isNeeded = false;
        for (const ArchiveComparison& comparison : compare(item, session_.world().root)) {
            isNeeded = isNeeded || comparison.hasSource;
            check(kebabCase(item.key), comparison);
        }
        if (problems_.size() == before)
            tellGood(kebabCase(item.key), isNeeded ? "saved" : "nothing to save");
    }

    void check(const SavedList& list) {
        switch (list.state) {
            case SavedList::State::UpToDate:
                return tellGood(list.word, "saved");
            case SavedList::State::NothingToSave:
                return tellGood(list.word, "nothing to save");
            case SavedList::State::Missing:
                return add(list.word, list.word + ": not saved", "missing");
            case SavedList::State::OutOfDate:
                return add(list.word,
                           list.word + ": out of date: it lacks " + someOf(list.notSaved),
                           "out of date");
        }
    }

    void tellVerdict(const std::string& what) {
        session_.feedback().hideHud();
        if (problems_.empty())
            return session_.output().result(what + "ready for a wipe", {{"verdict", "ready"}});
        session_.output().problem(what + "not ready for a wipe:", {{"verdict", "not ready"}});
        for (const auto& [text, fields] : problems_)
            session_.output().problem(text, fields);
        if (!toBeSaved_.empty()) {
            const std::string line = "tarnwick save " + joined(toBeSaved_, " ");
            session_.output().problem("to be run: " + line, {{"again", line}});
        }
        session_.feedback().noteProblem();
    }

private:
    void check(const std::string& word, const ArchiveComparison& comparison) {
        const std::string name = paths::nameOf(comparison.archive);
        const std::string verdict = verdictOn(session_, comparison.archive);
        if (verdict == "missing" && !comparison.hasSource)
            return;
        if (verdict != "good")
            return add(word, name + ": " + verdict, verdict, name);
        if (comparison.archiveError != 0)
            return add(word, name + ": damaged", "damaged", name);
        checkFiles(word, name, comparison.counts());
    }

    void checkFiles(const std::string& word, const std::string& archive,
                    const std::array<std::size_t, fileStates>& counts) {
        const auto count = [&](FileState state, const std::string& what) {
            return countText(counts.at(static_cast<std::size_t>(state)), what);
        };
        Words differences = {count(FileState::Changed, "changed"),
                             count(FileState::NotSaved, "not saved")};
        std::erase(differences, "");
        if (!differences.empty())
            add(word, word + ": out of date: " + joined(differences, ", "), "out of date", archive);
        const std::string unreadable = count(FileState::Unreadable, "cannot be read");
        if (!unreadable.empty())
            add(word, word + ": " + unreadable, "unreadable", archive);
    }

    void tellGood(const std::string& word, const std::string& verdict) {
        session_.feedback().without([&] {
            session_.output().result(word + ": " + verdict, {{"item", word}, {"verdict", verdict}});
        });
    }

    void add(const std::string& word, const std::string& text, const std::string& verdict,
             const std::string& archive = {}) {
        JsonFields fields = {{"item", word}, {"verdict", verdict}, {"problem", text}};
        if (!archive.empty())
            fields.emplace_back("archive", archive);
        problems_.emplace_back(text, fields);
        // A new save is of no use where nothing can be tested or read.
        const bool helps = verdict != "cannot be tested" && verdict != "unreadable";
        if (helps && (toBeSaved_.empty() || toBeSaved_.back() != word))
            toBeSaved_.push_back(word);
    }

    Session& session_;
    std::vector<std::pair<std::string, JsonFields>> problems_;
    Words toBeSaved_;
};

void checkAll(Session& session, const Words& words) {
    std::vector<const BackupItem*> plan;
    for (const BackupItem& item : session.catalogue())
        if (isNamed(item, words))
            plan.push_back(&item);
    session.feedback().setPlan(plan);
    session.feedback().showHud("Checking...");
    WipeCheck check(session);
    for (const BackupItem* item : plan)
        check.check(*item);
    session.feedback().begin("");
    if (words.empty())
        for (const SavedList& list : compareSavedLists(session.files()))
            check.check(list);
    check.tellVerdict(words.empty() ? "" : joined(words, ", ") + ": ");
}

}  // namespace

ExitStatus checkForWipe(Session& session, const std::vector<std::string>& words) {
    const bool readable = isReadable(session);
    const bool onlyArchives = session.arguments().archivesOnly || session.arguments().dryRun;
    const auto work = [&] { (onlyArchives ? testArchives : checkAll)(session, words); };
    const ExitStatus status = session.perform({.work = work});
    return readable ? status : unreadable(session);
}

}  // namespace tarnwick
