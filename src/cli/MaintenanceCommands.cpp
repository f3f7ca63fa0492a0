#include <algorithm>

#include "cli/Commands.h"
#include "cli/Words.h"
#include "core/SafeguardPaths.h"

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

int buttonIndexOf(const std::string& word, const std::vector<std::string>& words) {
    return static_cast<int>(std::find(words.begin(), words.end(), word) - words.begin()) + 1;
}

}  // namespace

std::vector<std::string> folderWords() {
    std::vector<std::string> words;
    for (const RecreatableFolder& folder : recreatableFolders())
        words.push_back(paths::nameOf(folder.path));
    return words;
}

ExitStatus showSize(Session& session, const std::vector<std::string>& words) {
    const BackupItem& item = *itemOfWord(session.catalogue(), words.front());
    session.feedback().setPlan({&item});
    const auto work = [&] {
        session.options().backupSize();
        choose(session, buttonIndexOf(words.front(), itemWords(session.catalogue())));
    };
    return session.perform({.work = work, .what = "size " + words.front()});
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
