#include <algorithm>
#include <functional>
#include <iterator>

#include "cli/Commands.h"
#include "cli/SavedThings.h"
#include "cli/SpaceNeeds.h"
#include "cli/Summary.h"
#include "cli/Words.h"
#include "core/JoinedText.h"
#include "core/SafeguardPaths.h"
#include "guard/MissingPackages.h"
#include "options/SizeFormatters.h"

namespace tarnwick {

namespace {

using Plan = std::vector<const BackupItem*>;
using Steps = std::vector<std::function<void()>>;

// The items that the words name; those of "all" only if they are wanted.
Plan planOf(const ItemCatalogue& catalogue, const std::vector<std::string>& words,
            const std::function<bool(const BackupItem&)>& wanted) {
    Plan plan;
    for (const std::string& word : words) {
        for (const BackupItem& item : catalogue)
            if (word == everyItem ? wanted(item) : kebabCase(item.key) == word)
                plan.push_back(&item);
    }
    return plan;
}

// The steps of the words, in their order. Returns the status to end with if a question was refused.
std::optional<ExitStatus> addRestoreSteps(Session& session, const std::vector<std::string>& words,
                                          Steps& steps) {
    const NamedActions actions = session.restore().actions();
    for (const std::string& word : words) {
        const auto& action = actions.at(actionName("restore", word, session.catalogue()));
        if (word != everyItem) {
            steps.push_back([&session, word, action] {
                session.feedback().begin(word);
                action();
            });
            continue;
        }
        action();
        const Alert question = session.feedback().takeQuestion().value();
        if (const auto refused = session.refusal(question))
            return refused;
        steps.push_back(
            [&session, question] { session.restore().alertViewClickedButtonAtIndex(question, 1); });
    }
    return std::nullopt;
}

bool has(const std::vector<std::string>& words, std::string_view word) {
    return std::find(words.begin(), words.end(), word) != words.end();
}

// What a restore of the sources reads, and the list that it empties or deletes first: with Cydia's
// cache, or without.
struct SourceLists {
    std::string_view saved;
    std::string_view replaced;
};

SourceLists sourceListsOf(const FileReader& files) {
    if (!files.exists(paths::cydiaCacheList))
        return {paths::savedCydiaList, paths::cydiaAptList};
    const bool hasSources = files.exists(paths::savedSourcesList);
    return {hasSources ? paths::savedSourcesList : paths::savedCydiaList, paths::ownAptList};
}

Alert lossQuestion(const SourceLists& lists) {
    return {.title = "Cydia Sources Restoration",
            .message = "There is no saved " + paths::nameOf(lists.saved) +
                       " that can be read: this deletes what is in " + std::string(lists.replaced) +
                       " and puts nothing in its place.",
            .otherButtonTitles = {"Delete it"},
            .kind = AlertKind::Question};
}

// What the operations do not report: that there is nothing to put back.
void reportMissingBackups(Session& session, bool hasSources, const Plan& plan,
                          const std::vector<std::string>& words) {
    if (has(words, sourcesWord) && !hasSources) {
        session.feedback().begin(sourcesWord);
        session.reportBeforehand("there is no saved list of sources to put back");
    }
    session.feedback().begin({});
    if (has(words, everyItem) && plan.empty())
        session.reportBeforehand("there is no archive to restore");
}

// In a rehearsal the operations do not tell; and a run over all items passes over what is missing.
void rehearseMissingBackups(Session& session, const std::vector<std::string>& words) {
    for (const SavedThing& thing : savedThings(session.files(), session.catalogue(), words)) {
        if (thing.word == sourcesWord || session.files().exists(thing.copies.front()))
            continue;
        session.feedback().begin(thing.word);
        session.output().complaint("there is no backup of " + thing.word, {{"item", thing.word}});
        if (has(words, thing.word))
            session.feedback().noteProblem();
    }
}

void reportMissingPackages(Session& session) {
    session.feedback().begin(packagesWord);
    const auto missing = missingPackages(session.files());
    if (missing.empty())
        return;
    session.report("these packages of the list are not installed: " + someOf(missing));
}

// Whether the space may not do, of which it tells.
bool lacksSpace(Session& session, const Plan& plan, void (SpaceNeeds::*add)(const BackupItem&)) {
    SpaceNeeds needs(session.files(), session.world().root);
    for (const BackupItem* item : plan)
        (needs.*add)(*item);
    const auto shortage = needs.shortage();
    if (!shortage)
        return false;
    session.output().complaint(
        "this may take up to " + memoryFormatterDouble(static_cast<double>(shortage->needed)) +
            " more on the file system of " + shortage->path + ", which has " +
            memoryFormatterDouble(static_cast<double>(shortage->free)) + " free",
        {{"neededBytes", shortage->needed}, {"freeBytes", shortage->free}});
    return true;
}

// Gives what was begun back to its owner.
std::vector<std::string> ownerLines(const Plan& plan) {
    std::vector<std::string> lines;
    for (const BackupItem* item : plan)
        std::copy_if(item->restoreCommands.begin(), item->restoreCommands.end(),
                     std::back_inserter(lines),
                     [](const std::string& line) { return line.starts_with("chown "); });
    return lines;
}

// What the operations do not tell.
void endRestore(Session& session, bool hasSources, const Plan& plan,
                const std::vector<std::string>& words) {
    if (has(words, packagesWord))
        reportMissingPackages(session);
    reportMissingBackups(session, hasSources, plan, words);
    if (session.arguments().dryRun)
        rehearseMissingBackups(session, words);
    tellWhatWasRestored(session, words);
}

// What to do about an offer: as --then says, else as the person at the terminal says, else nothing.
Offer answerTo(Session& session, Offer offer) {
    if (session.arguments().then)
        return *session.arguments().then;
    if (session.arguments().dryRun || !session.questions().canAsk())
        return Offer::None;
    return session.questions().confirm(wordsOf(offer).buttons.front()) ? offer : Offer::None;
}

}  // namespace

ExitStatus saveTargets(Session& session, const std::vector<std::string>& words) {
    const Plan plan = planOf(session.catalogue(), words, [](const BackupItem&) { return true; });
    session.feedback().setPlan(plan);
    const NamedActions actions = session.backup().actions();
    const auto work = [&] {
        session.backup().ensureSafeguardFolders();
        for (const std::string& word : words) {
            session.feedback().begin(word);
            actions.at(actionName("save", word, session.catalogue()))();
        }
        tellWhatWasSaved(session, words);
    };
    const auto hasRisk = [&] { return lacksSpace(session, plan, &SpaceNeeds::addSave); };
    return session.perform(
        {.hasRisk = hasRisk, .work = work, .what = "save " + joined(words, " ")});
}

ExitStatus restoreTargets(Session& session, const std::vector<std::string>& words) {
    const Plan plan = planOf(session.catalogue(), words, [&session](const BackupItem& item) {
        return session.files().exists(item.firstArchivePath());
    });
    session.feedback().setPlan(plan);
    Steps steps;
    const SourceLists lists = sourceListsOf(session.files());
    const bool hasSources = has(words, sourcesWord) && session.files().readText(lists.saved);
    if (has(words, sourcesWord) && !hasSources && session.files().exists(lists.replaced))
        if (const auto refused = session.refusal(lossQuestion(lists)))
            return *refused;
    if (const auto refused = addRestoreSteps(session, words, steps))
        return *refused;
    const auto work = [&] {
        for (const auto& step : steps)
            step();
        endRestore(session, hasSources, plan, words);
    };
    const auto afterwards = [&session](const RunReport& report) {
        if (report.offer != Offer::None)
            session.restore().accept(answerTo(session, report.offer));
    };
    const auto hasRisk = [&] { return lacksSpace(session, plan, &SpaceNeeds::addRestore); };
    return session.perform({.hasRisk = hasRisk,
                            .work = work,
                            .repairs = ownerLines(plan),
                            .afterwards = afterwards,
                            .what = "restore " + joined(words, " "),
                            .isRestore = true,
                            .installsPackages = has(words, packagesWord)});
}

}  // namespace tarnwick
