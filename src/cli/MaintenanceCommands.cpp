#include <algorithm>

#include "cli/Commands.h"
#include "cli/SavedThings.h"
#include "cli/Words.h"
#include "core/JoinedText.h"
#include "core/SafeguardPaths.h"
#include "options/SizeFormatters.h"

namespace tarnwick {

namespace {

// Presses the first other button of the question that the action asks, unless that is refused.
ExitStatus confirmed(Session& session, void (OptionsOperations::*action)()) {
    (session.options().*action)();
    const Alert question = session.feedback().takeQuestion().value();
    if (const auto refused = session.refusal(question))
        return *refused;
    return session.perform(
        {.work = [&] { session.options().alertViewClickedButtonAtIndex(question, 1); }});
}

// The words of the command line answer the choice.
void choose(Session& session, int buttonIndex) {
    session.options().alertViewClickedButtonAtIndex(session.feedback().takeQuestion().value(),
                                                    buttonIndex);
}

// As the answer is given, what was made to be measured is still there.
std::int64_t measuredSize(const FileReader& files, const BackupItem& item) {
    const bool isSaved = files.exists(item.firstArchivePath());
    std::int64_t bytes = 0;
    for (const std::string& path : isSaved ? item.archivePaths() : item.sizeArchivePaths)
        bytes += static_cast<std::int64_t>(files.fileSize(path));
    return bytes;
}

int buttonIndexOf(const std::string& word, const std::vector<std::string>& words) {
    return static_cast<int>(std::find(words.begin(), words.end(), word) - words.begin()) + 1;
}

// Returns the bytes.
std::int64_t measure(Session& session, const BackupItem& item) {
    const std::string word = kebabCase(item.key);
    std::int64_t bytes = 0;
    session.feedback().begin(word);
    session.feedback().setFacts([&] {
        bytes = measuredSize(session.files(), item);
        return JsonFields{{"item", word}, {"bytes", bytes}};
    });
    session.options().backupSize();
    choose(session, buttonIndexOf(word, itemWords(session.catalogue())));
    session.feedback().setFacts({});
    return bytes;
}

}  // namespace

std::vector<std::string> folderWords() {
    std::vector<std::string> words;
    for (const RecreatableFolder& folder : recreatableFolders())
        words.push_back(paths::nameOf(folder.path));
    return words;
}

ExitStatus showSize(Session& session, const std::vector<std::string>& words) {
    const auto things = savedThings(session.files(), session.catalogue(), words);
    std::vector<const BackupItem*> plan;
    for (const SavedThing& thing : things)
        plan.push_back(itemOfWord(session.catalogue(), thing.word));
    session.feedback().setPlan(plan);
    const auto work = [&] {
        std::int64_t total = 0;
        for (const BackupItem* item : plan)
            total += measure(session, *item);
        if (plan.size() > 1 && !session.arguments().dryRun)
            session.output().result("Total: " + memoryFormatterDouble(static_cast<double>(total)),
                                    {{"totalBytes", total}});
    };
    return session.perform({.work = work, .what = "size " + joined(words, " ")});
}

ExitStatus recreateFolders(Session& session, const std::vector<std::string>& words) {
    constexpr int allFolders = 1;
    constexpr int partially = 2;
    const auto work = [&] {
        session.options().recreateApplicationFolders();
        choose(session, words.empty() ? allFolders : partially);
        if (!words.empty())
            choose(session, buttonIndexOf(words.front(), folderWords()));
    };
    return session.perform({.work = work});
}

ExitStatus removeSaved(Session& session, const std::vector<std::string>& words) {
    return confirmed(session, words.front() == "backups" ? &OptionsOperations::removeSafeguard
                                                         : &OptionsOperations::removeSourcesList);
}

ExitStatus respringDevice(Session& session, const std::vector<std::string>&) {
    return confirmed(session, &OptionsOperations::respring);
}

ExitStatus rebootDevice(Session& session, const std::vector<std::string>&) {
    return confirmed(session, &OptionsOperations::reboot);
}

}  // namespace tarnwick
