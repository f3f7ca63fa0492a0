#include "support/Events.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "cli/Words.h"
#include "support/Operations.h"

namespace tarnwick::testing {
namespace {

TEST(Events, EveryOperationDoesWhatTheTableSaysAfterItsQuestions) {
    const Entries questions = literalQuestions();
    for (const auto& [scene, events] : literalEvents()) {
        Operations on;
        on.queues.mainIsFaster = true;
        setScene(scene, on.folder, on.runner);
        NamedActions actions = on.options.actions();
        actions.merge(on.backup.actions());
        actions.merge(on.restore.actions());
        const Steps steps = stepsOf(scene);
        actions.at(steps.action)();
        for (const int button : steps.answers) {
            const Alert question = on.feedback.lastAlert;
            const bool isRestore = steps.action == "restoreAllInOne";
            // The names of the archives stand in its text.
            EXPECT_EQ(std::ranges::count(questions, "alert: " + textOf(question)),
                      isRestore ? 0 : 1);
            on.diary.entries.clear();
            for (const int index : {0, button})
                isRestore ? on.restore.alertViewClickedButtonAtIndex(question, index)
                          : on.options.alertViewClickedButtonAtIndex(question, index);
        }
        on.queues.stepGlobal();
        EXPECT_EQ(on.diary.entries, events) << scene;
    }
}

TEST(Events, AllInOneAsksWithWhatIsThere) {
    Operations on;
    on.folder.put(library + "Notes.zip", "zip");
    on.restore.restoreAllInOne();
    EXPECT_EQ(on.diary.entries, Entries{literalQuestions().back()});
}

TEST(Events, TheTableHasEveryItem) {
    const auto table = literalEvents();
    for (const std::string& word : itemWords(ItemCatalogue()))
        for (const char* verb : {"save ", "restore ", "size "})
            EXPECT_TRUE(table.contains(verb + word)) << verb << word;
}

}  // namespace
}  // namespace tarnwick::testing
