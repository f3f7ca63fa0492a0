#include <algorithm>
#include <functional>

#include "cli/Commands.h"
#include "cli/Words.h"
#include "core/SafeguardPaths.h"

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

std::vector<std::string> stagingPathsOf(const Plan& plan) {
    std::vector<std::string> paths;
    for (const BackupItem* item : plan)
        paths.insert(paths.end(), item->stagingPaths.begin(), item->stagingPaths.end());
    return paths;
}

// The steps of the words, in their order. Returns the status to end with if a question was refused.
std::optional<ExitStatus> addRestoreSteps(Session& session, const std::vector<std::string>& words,
                                          Steps& steps) {
    const NamedActions actions = session.restore().actions();
    for (const std::string& word : words) {
        const auto& action = actions.at(actionName("restore", word, session.catalogue()));
        if (word != everyItem) {
            steps.push_back(action);
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
        for (const std::string& word : words)
            actions.at(actionName("save", word, session.catalogue()))();
    };
    return session.perform(work, stagingPathsOf(plan));
}

ExitStatus restoreTargets(Session& session, const std::vector<std::string>& words) {
    session.feedback().setPlan(
        planOf(session.catalogue(), words, [&session](const BackupItem& item) {
            return session.files().exists(item.firstArchivePath());
        }));
    Steps steps;
    if (const auto refused = addRestoreSteps(session, words, steps))
        return *refused;
    const std::string unpackedTree(paths::unpackedTree);
    const auto work = [&] {
        // What a killed restore left there would pass for a part of this one's archives.
        if (session.files().exists(unpackedTree))
            session.changes().remove(unpackedTree);
        for (const auto& step : steps)
            step();
    };
    return session.perform(work, {unpackedTree}, [&session](const RunReport& report) {
        if (report.offer != Offer::None)
            session.restore().accept(answerTo(session, report.offer));
    });
}

}  // namespace tarnwick
