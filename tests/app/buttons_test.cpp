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
    void expect(const std::string& scene) {
        const Entries events = literalEvents().at(scene);
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
    void pressEveryButton(const std::string& verb, const std::string& exception) {
        const auto table = literalEvents();
        setScene(verb + exception, folder, runner);
        for (const std::string& word : targetWords(catalogue)) {
            const std::string scene = verb + " " + word + exception;
            if (!table.contains(scene))
                continue;
            choose(QString::fromStdString(verb == "save" ? "backup" : verb));
            pressButton(actionName(verb, word, catalogue));
            if (scene.starts_with("restore all"))
                answer(1);
            expect(scene);
        }
    }
    // Presses a button of Options and answers its questions in turn.
    void reply(const std::string& action, const std::vector<int>& answers) {
        const Entries questions = literalEvents().at("questions");
        choose("options");
        pressButton(action);
        for (const int index : answers) {
            const std::string text = "alert: " + textOf(window.alerts().top()->alert());
            EXPECT_EQ(std::ranges::count(questions, text), 1) << text;
            answer(index);
        }
    }
    // The last question is cancelled at first.
    void ask(const std::string& action, std::vector<int> answers, const std::string& scene) {
        const int button = std::exchange(answers.back(), 0);
        reply(action, answers);
        clock.advance(0.5);
        EXPECT_TRUE(diary.entries.empty() && closeAlerts().empty()) << scene;
        answers.back() = button;
        reply(action, answers);
        expect(scene);
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
    pressEveryButton("save", ", nothing zipped");
    pressEveryButton("save", "");
}

TEST_F(ButtonsTest, OfRestoreDoWhatTheTableSays) {
    pressEveryButton("restore", ", nothing saved");
    pressEveryButton("restore", "");
}

TEST_F(ButtonsTest, OfOptionsAskAndThenDoWhatTheTableSays) {
    ask("removeSourcesList", {1}, "remove sources-list, nothing there");
    setScene("folders", folder, runner);
    ask("recreateApplicationFolders", {1}, "folders");
    const std::vector<std::string> folders = {"Tarnwick", "CydiaSources", "CydiaPackages",
                                              "TarnwickLibrary"};
    for (int button = 1; const std::string& name : folders)
        ask("recreateApplicationFolders", {2, button++}, "folders " + name);
    ask("removeSafeguard", {1}, "remove backups");
    ask("removeSourcesList", {1}, "remove sources-list");
    ask("respring", {1}, "respring");
    ask("reboot", {1}, "reboot");
    for (int button = 1; const std::string& word : itemWords(catalogue))
        ask("backupSize", {button++}, "size " + word);
    choose("options");
    EXPECT_EQ(actions(),
              (std::vector<std::string>{"recreateApplicationFolders", "removeSafeguard",
                                        "removeSourcesList", "respring", "reboot", "backupSize"}));
}

}  // namespace
}  // namespace tarnwick::testing
