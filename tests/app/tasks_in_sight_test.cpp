#include <gtest/gtest.h>
#include <utime.h>

#include "app/DeferredClose.h"
#include "core/SafeguardPaths.h"
#include "screens/SavedTexts.h"
#include "support/ProgramWindow.h"
#include "ui/hud/ProgressHUD.h"

namespace tarnwick::testing {
namespace {

class TasksInSightTest : public ProgramWindow {
protected:
    TasksInSightTest() { queues.backgroundWaits = true; }
    ~TasksInSightTest() override {
        while (!answerAlert(0).empty()) {
        }
    }

    // What shows that a task of the screen is under way, from any screen.
    std::string signs(const QString& row) {
        QCoreApplication::processEvents();
        return signsIn(window.contentItem(), row);
    }
    static std::string signsIn(const QQuickItem* item, const QString& row) {
        std::string signs;
        if (item->property("busy").toBool())
            signs = item->property("reuseIdentifier").toString() == row ? "row " : "line ";
        for (const QQuickItem* child : item->childItems())
            signs += signsIn(child, row);
        return signs;
    }
    // Does the work that waits, and what that leaves to the main thread.
    void work() {
        queues.stepGlobal();
        QCoreApplication::processEvents();
        queues.stepGlobal();
        queues.stepMain();
    }
    ProgressHUD* hud() { return ProgressHUD::HUDForView(screen().view()); }
};

TEST_F(TasksInSightTest, ATaskIsSeenFromEveryScreenAndOnItsOwnAgain) {
    work();
    press("notesButton");
    choose("help");
    reveal->revealToggle();
    clock.advance(1.0);
    EXPECT_EQ(signs("backup"), "row line ");
    choose("restore");
    EXPECT_EQ(hud(), nullptr) << "it is not its task";
    choose("backup");
    ASSERT_NE(hud(), nullptr);
    EXPECT_EQ(hud()->labelText(), "Backup in progress...");
    EXPECT_EQ(element("notesButton")->property("detail").toString(), "");
    work();
    clock.advance(1.0);
    EXPECT_EQ(hud(), nullptr);
    EXPECT_EQ(signs("backup"), "");
    EXPECT_EQ(element("notesButton")->property("detail").toString(), "not saved yet");
}

TEST_F(TasksInSightTest, AHudThatNothingStandsBehindDoesNotComeBack) {
    choose("restore");
    press("packagesButton");
    work();
    EXPECT_NE(hud(), nullptr) << "as there is no backup";
    choose("restore");
    EXPECT_EQ(hud(), nullptr);
}

TEST_F(TasksInSightTest, AWindowThatIsClosedDuringATaskClosesWhenThatIsDoneAndAnswered) {
    DeferredClose closing(window, gate.tasks());
    press("notesButton");
    EXPECT_FALSE(window.close());
    EXPECT_TRUE(window.isVisible());
    work();
    EXPECT_TRUE(window.isVisible()) << "the result is to be read";
    answerAlert(0);
    EXPECT_FALSE(window.isVisible());

    window.show();
    press("accountsButton");
    EXPECT_FALSE(window.close());
    closing.cancel();
    work();
    answerAlert(0);
    EXPECT_TRUE(window.isVisible()) << "it was wanted again";
    EXPECT_TRUE(window.close());
}

TEST_F(TasksInSightTest, EveryButtonSaysWhatIsSavedOfItsItem) {
    const auto save = [this](std::string_view path, std::size_t bytes, std::time_t time) {
        files.writeText(path, std::string(bytes, 'x'));
        const utimbuf times = {time, time};
        ::utime((folder.path() + std::string(path)).c_str(), &times);
    };
    constexpr std::time_t noon = 1795694400;  // 26 Nov 2026
    constexpr std::time_t day = 24 * 60 * 60;
    const std::string archives(paths::archiveFolder);
    save(archives + "/DCIM.zip", 3 * 1024 * 1024, noon);
    save(archives + "/Notes.zip", 2048, noon);
    save(paths::savedCydiaList, 100, noon);
    save(paths::savedSourcesList, 200, noon - day);
    const std::pair<const char*, const char*> rows[] = {{"Notes", "26 Nov 2026, 2 KB"},
                                                        {"Photos", "not saved yet"},
                                                        {"Packages", "not saved yet"},
                                                        {"Sources", "26 Nov 2026, 100 bytes"},
                                                        {"AllInOne", "1 of 11, 2 KB"}};
    for (const auto& [name, text] : rows)
        EXPECT_EQ(savedTexts(catalogue, files)[name].toStdString(), text) << name;
    save(archives + "/PhotoData.zip", 512 * 1024, noon - day);
    EXPECT_EQ(savedTexts(catalogue, files)["Photos"], "25 Nov 2026, 3.5 MB");
}

}  // namespace
}  // namespace tarnwick::testing
