#include "support/Events.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "cli/Commands.h"
#include "cli/Words.h"
#include "support/Operations.h"

namespace tarnwick::testing {
namespace {

std::size_t placeIn(const std::vector<std::string>& words, const std::string& word) {
    return static_cast<std::size_t>(std::find(words.begin(), words.end(), word) - words.begin());
}

// Asks, forgets the question and presses the button.
void answer(Operations& on, void (OptionsOperations::*question)(), std::size_t button) {
    (on.options.*question)();
    on.diary.entries.clear();
    on.options.alertViewClickedButtonAtIndex(on.feedback.lastAlert, static_cast<int>(button));
}

void restore(Operations& on, const std::string& target) {
    if (target != "all") {
        on.restore.actions().at(actionName("restore", target, on.catalogue))();
        return;
    }
    on.restore.restoreAllInOne();
    on.diary.entries.clear();
    on.restore.alertViewClickedButtonAtIndex(on.feedback.lastAlert, 1);
}

void recreateFolders(Operations& on, const std::string& name) {
    answer(on, &OptionsOperations::recreateApplicationFolders, name.empty() ? 1 : 2);
    if (name.empty())
        return;
    on.diary.entries.clear();
    on.options.alertViewClickedButtonAtIndex(on.feedback.lastAlert,
                                             static_cast<int>(placeIn(folderWords(), name)) + 1);
}

void ask(Operations& on) {
    on.options.recreateApplicationFolders();
    on.options.alertViewClickedButtonAtIndex(on.feedback.lastAlert, 2);
    on.options.removeSafeguard();
    on.options.respring();
    on.options.reboot();
    on.options.removeSourcesList();
    on.options.backupSize();
    on.folder.put(library + "Notes.zip", "zip");
    on.restore.restoreAllInOne();
}

void perform(Operations& on, const std::string& verb, const std::string& word) {
    if (verb == "save")
        on.backup.actions().at(actionName("save", word, on.catalogue))();
    else if (verb == "restore")
        restore(on, word);
    else if (verb == "size")
        answer(on, &OptionsOperations::backupSize, placeIn(itemWords(on.catalogue), word) + 1);
    else if (verb == "folders")
        recreateFolders(on, word);
    else if (verb == "remove" && word == "backups")
        answer(on, &OptionsOperations::removeSafeguard, 1);
    else if (verb == "remove")
        answer(on, &OptionsOperations::removeSourcesList, 1);
    else if (verb == "respring")
        answer(on, &OptionsOperations::respring, 1);
    else if (verb == "reboot")
        answer(on, &OptionsOperations::reboot, 1);
    else if (verb == "questions")
        ask(on);
    else
        ADD_FAILURE() << "unknown verb " << verb;
}

TEST(Events, EveryOperationDoesWhatTheTableSays) {
    for (const auto& [scene, events] : literalEvents()) {
        const std::string phrase = scene.substr(0, scene.find(','));
        const std::string verb = phrase.substr(0, phrase.find(' '));
        Operations on;
        on.queues.mainIsFaster = true;
        setScene(scene, on.folder, on.runner);
        perform(on, verb, phrase == verb ? "" : phrase.substr(verb.size() + 1));
        on.queues.stepGlobal();
        EXPECT_EQ(on.diary.entries, events) << scene;
    }
}

TEST(Events, TheTableHasEveryItem) {
    const auto table = literalEvents();
    for (const std::string& word : itemWords(ItemCatalogue()))
        for (const char* verb : {"save ", "restore ", "size "})
            EXPECT_TRUE(table.contains(verb + word)) << verb << word;
}

}  // namespace
}  // namespace tarnwick::testing
