#include <gtest/gtest.h>

#include <algorithm>

#include "cli/Words.h"
#include "support/Events.h"
#include "support/ProgramWindow.h"
#include "ui/hud/ProgressHUD.h"

namespace tarnwick::testing {
namespace {

// Presses what the scenes themselves offer and compares with the table.
class ButtonsTest : public ProgramWindow {
protected:
    ButtonsTest() {
        queues.mainIsFaster = true;
        queues.backgroundWaits = true;
    }

    QString actionOf(const QQuickItem* item) const {
        return item->property("actionName").toString();
    }
    // From the top down.
    std::vector<QQuickItem*> buttons() {
        auto items = screen().view()->findChildren<QQuickItem*>();
        items.removeIf([this](const QQuickItem* item) { return actionOf(item).isEmpty(); });
        std::ranges::sort(items, {},
                          [](const QQuickItem* item) { return item->mapToScene(QPointF()).y(); });
        return {items.begin(), items.end()};
    }
    std::vector<std::string> actions() {
        std::vector<std::string> names;
        for (const QQuickItem* button : buttons())
            names.push_back(actionOf(button).toStdString());
        return names;
    }
    void pressButton(const std::string& action) {
        diary.entries.clear();
        for (QQuickItem* button : buttons())
            if (actionOf(button).toStdString() == action)
                QMetaObject::invokeMethod(button, "clicked");
    }
    void answer(int index) {
        diary.entries.clear();
        emit window.alerts().top()->buttonPressed(index);
    }
    // The oldest first; they are closed.
    Entries closeAlerts() {
        Entries texts;
        while (window.alerts().numberShown() > 0)
            texts.insert(texts.begin(), "alert: " + answerAlert(0));
        return texts;
    }
    // What HUD covers the screen; empty if there is none.
    std::string hud() {
        const ProgressHUD* hud = ProgressHUD::HUDForView(screen().view());
        return hud == nullptr ? "" : "hud: " + hud->labelText().toStdString();
    }
    // What the screen does after its button or its answer was pressed.
    void expect(const std::string& scene, const Entries& events) {
        if (std::ranges::count(events, "background thread") > 0) {
            EXPECT_EQ(hud(), events.front()) << scene;
        }
        clock.advance(0.5);
        queues.stepGlobal();
        clock.advance(0.5);
        EXPECT_EQ(diary.changes(), changesIn(events)) << scene;
        EXPECT_EQ(closeAlerts(), alertsIn(events)) << scene;
        const bool stays = hud() == events.front();
        EXPECT_EQ(stays, scene == "restore packages, nothing saved") << scene;
    }
    // All that the buttons of one screen do.
    void playScenes(const QString& row) {
        choose(row);
        const auto names = actions();
        for (const auto& [scene, events] : literalEvents()) {
            const Steps steps = stepsOf(scene);
            if (std::ranges::count(names, steps.action) == 0)
                continue;
            folder.clear();
            runner.act = [](const std::string&) {};
            setScene(scene, folder, runner);
            choose(row);
            pressButton(steps.action);
            for (const int index : steps.answers)
                answer(index);
            expect(scene, events);
        }
    }
};

TEST_F(ButtonsTest, BackupAndRestoreHaveAButtonForEachItemInTheOrderOfTheCatalogue) {
    for (const auto& [row, verb] : {std::pair("backup", "save"), std::pair("restore", "restore")}) {
        std::vector<std::string> expected;
        for (const std::string& word : targetWords(catalogue))
            expected.push_back(actionName(verb, word, catalogue));
        choose(row);
        EXPECT_EQ(actions(), expected);
    }
}

TEST_F(ButtonsTest, OfBackupDoWhatTheTableSays) {
    playScenes("backup");
}

TEST_F(ButtonsTest, OfRestoreDoWhatTheTableSays) {
    playScenes("restore");
}

TEST_F(ButtonsTest, OfOptionsDoWhatTheTableSays) {
    playScenes("options");
    EXPECT_EQ(actions(),
              (std::vector<std::string>{"recreateApplicationFolders", "removeSafeguard",
                                        "removeSourcesList", "respring", "reboot", "backupSize"}));
}

}  // namespace
}  // namespace tarnwick::testing
