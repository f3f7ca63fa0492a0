#include <gtest/gtest.h>

#include "app/AppDelegate.h"
#include "app/QuickActions.h"
#include "app/StartOptions.h"
#include "core/SafeguardPaths.h"
#include "support/Events.h"
#include "support/Finger.h"
#include "support/ProgramWindow.h"

namespace tarnwick::testing {
namespace {

class Delegate : public AppDelegate {
public:
    using AppDelegate::AppDelegate;
    std::optional<std::string> platformType() const override { return model; }
    std::optional<std::string> model;
};

class QuickActionsTest : public ProgramWindow {
protected:
    ~QuickActionsTest() override { EXPECT_EQ(handled, 0) << "no handler is ever called"; }

    void perform(const QString& action) {
        delegate->applicationPerformActionForShortcutItem(shortcutItem(action), handler);
        diary.entries.clear();  // of what the screen did while it loaded
    }
    void runAll() {
        queues.stepGlobal();
        queues.stepMain();
        clock.advance(0.5);
    }
    // The title of the screen that stands alone in the window; empty if it is in a container.
    QString screenAlone() const {
        const auto* root = dynamic_cast<NavigationController*>(window.rootViewController().get());
        return root == nullptr ? QString() : root->rootViewController()->title();
    }
    std::string alert() {
        return window.alerts().numberShown() == 0 ? "none" : textOf(window.alerts().top()->alert());
    }
    void noteAlertsAtEachCommand() {
        runner.act = [this](const std::string&) { seenByCommands.push_back(alert()); };
    }

    std::shared_ptr<Delegate> delegate = std::make_shared<Delegate>(window, services);
    int handled = 0;
    std::function<void(bool)> handler = [this](bool) { ++handled; };
    std::vector<std::string> seenByCommands;
};

const std::string notice = ": Backup in progress... [] #0";
const std::string sourcesDone = "Cydia Backup: Backup done ! [Close] #0";
const std::string allDone = "All in One Backup: Backup done ! [Close] #0";
const std::string selections =
    "run: dpkg --get-selections > "
    "/var/mobile/Library/Preferences/Tarnwick/CydiaPackages/installed-packages.txt";

TEST_F(QuickActionsTest, SaveSavesPackagesAndThenSourcesBehindANotice) {
    folder.put(std::string(paths::cydiaCacheList), "one\n\n");
    folder.put(std::string(paths::ownAptList), "two\n");
    queues.mainIsFaster = true;
    noteAlertsAtEachCommand();
    perform("save");
    EXPECT_EQ(screenAlone(), "Backup");
    EXPECT_EQ(alert(), "none");
    runAll();
    const std::string saved(paths::savedSourcesList);
    EXPECT_EQ(diary.changes(), (Entries{selections, "create file: " + saved, "write: " + saved}));
    EXPECT_EQ(folder.content(saved), "one\n\n\ntwo\n");
    EXPECT_EQ(seenByCommands, Entries{notice});
    EXPECT_EQ(alert(), sourcesDone);
    answerAlert(0);
    EXPECT_EQ(alert(), "none");
}

TEST_F(QuickActionsTest, SaveAllDoesTheWorkOfAllInOneAndNoneOfItsTests) {
    queues.mainIsFaster = true;
    noteAlertsAtEachCommand();
    perform("save-all");
    EXPECT_EQ(screenAlone(), "Backup");
    runAll();
    EXPECT_EQ(diary.entries, changesIn(literalEvents().at("save all")));
    EXPECT_EQ(seenByCommands, Entries(seenByCommands.size(), notice));
    EXPECT_EQ(alert(), allDone);
    answerAlert(0);
    EXPECT_EQ(alert(), "none");
}

TEST_F(QuickActionsTest, TwoSavesOverlapAndEachTakesItsOwnNoticeAway) {
    perform("save");
    perform("save-all");
    runAll();
    EXPECT_EQ(window.alerts().numberShown(), 2);
    EXPECT_EQ(alert(), allDone);
    answerAlert(0);
    EXPECT_EQ(alert(), sourcesDone);
}

TEST_F(QuickActionsTest, ScreensReplaceAllThatWasThereEvenUnderAFinger) {
    Finger finger(window, clock);
    finger.press({20, 300});
    finger.move({200, 300});
    perform("restore");
    finger.move({300, 300});
    finger.lift();
    clock.advance(1.0);
    EXPECT_EQ(screenAlone(), "Restore");
    perform("options");
    EXPECT_EQ(screenAlone(), "Options");
    perform("Save");
    runAll();
    EXPECT_EQ(screenAlone(), "Options") << "an unknown action is only logged";
    EXPECT_TRUE(diary.entries.empty());
    EXPECT_EQ(alert(), "none");
    EXPECT_EQ(log.lines,
              "A shortcut item was pressed. It was Restore.\n"
              "A shortcut item was pressed. It was Options.\n"
              "A shortcut item was pressed. It was Save.\n");
}

TEST_F(QuickActionsTest, ALaunchReadsItsItemOnTwoModelsOnly) {
    const std::string fromItem = "We've launched from shortcut item: Restore\n";
    const std::string properly = "We've launched properly.\n";
    struct Row {
        std::optional<std::string> model;
        std::optional<QString> action;
        std::string log;
        QString screen;
    };
    const Row rows[] = {
        {"iPhone 6s", {}, properly, ""},
        {"iPhone 6s Plus", "restore", fromItem, "Restore"},
        {"iPhone 6s", "unknown", "We've launched from shortcut item: unknown\n", ""},
        {"iPhone 6", "restore", "", ""},
        {"iPhone", "restore", "", ""},
        {{}, "restore", "", ""},
    };
    const auto container = window.rootViewController();
    for (const Row& row : rows) {
        log.lines.clear();
        window.setRootViewController(container);
        delegate->model = row.model;
        LaunchOptions options;
        if (row.action)
            options.shortcutItem = shortcutItem(*row.action);
        EXPECT_TRUE(delegate->applicationDidFinishLaunchingWithOptions(options));
        EXPECT_EQ(log.lines, row.log) << row.model.value_or("no family");
        EXPECT_EQ(screenAlone(), row.screen) << row.model.value_or("no family");
    }
}

TEST(StartOptions, TakeAnActionAndNoneOfTheToolkitsOptions) {
    EXPECT_EQ(parseStartOptions({"--action", "save-all"})->action, "save-all");
    EXPECT_TRUE(parseStartOptions({"--service"})->isService);
    EXPECT_FALSE(parseStartOptions({})->action);
    for (const std::string& name : {std::string(), std::string("save all"), std::string(65, 'a')})
        EXPECT_FALSE(parseStartOptions({"--action", name})) << name;
    for (const char* word :
         {"-platformpluginpath", "--platform=xcb", "-qmljsdebugger", "--action", ""})
        EXPECT_FALSE(parseStartOptions({word})) << word;
}

}  // namespace
}  // namespace tarnwick::testing
