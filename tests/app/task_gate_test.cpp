#include <gtest/gtest.h>

#include <optional>

#include "guard/RunLock.h"
#include "support/Events.h"
#include "support/Operations.h"
#include "support/ProgramWindow.h"
#include "ui/hud/ProgressHUD.h"

namespace tarnwick::testing {
namespace {

class TaskGateTest : public ProgramWindow {
protected:
    TaskGateTest() {
        queues.backgroundWaits = true;
        diary.entries.clear();
        otherProgram.emplace(lockPath);
    }
    // A screen lives until its alerts are answered.
    ~TaskGateTest() override {
        while (!answerAlert(0).empty()) {
        }
    }

    bool isFree() const { return RunLock(lockPath).state() == RunLock::State::Held; }
    void endOtherProgramsRun() {
        otherProgram.reset();
        clock.advance(1.0);
    }

    const std::string lockPath = folder.path() + "/lock";
    std::optional<RunLock> otherProgram;
};

TEST_F(TaskGateTest, ATaskWaitsInSightForTheCommandAndThenHoldsItOff) {
    press("notesButton");
    EXPECT_EQ(ProgressHUD::HUDForView(screen().view())->labelText(), "Waiting...");
    choose("help");
    clock.advance(1.0);
    EXPECT_TRUE(diary.changes().empty());
    endOtherProgramsRun();
    EXPECT_FALSE(isFree()) << "the work is still queued";
    queues.stepGlobal();
    EXPECT_EQ(diary.changes(), changesIn(literalEvents().at("save notes")));
    EXPECT_TRUE(isFree());
}

TEST_F(TaskGateTest, TheTasksOfTheWindowDoNotWaitForEachOther) {
    otherProgram.reset();
    press("notesButton");
    press("accountsButton");
    EXPECT_FALSE(isFree());
    queues.stepGlobal();
    EXPECT_TRUE(isFree());
    EXPECT_EQ(window.alerts().numberShown(), 2);
}

TEST_F(TaskGateTest, AnAnswerWaitsTooButAQuestionDoesNot) {
    choose("options");
    press("respringButton");
    EXPECT_TRUE(answerAlert(1).starts_with("Respring"));
    EXPECT_TRUE(diary.changes().empty());
    endOtherProgramsRun();
    EXPECT_EQ(diary.changes(), Entries{"run: killall backboardd"});
}

TEST_F(TaskGateTest, AQuickSaveWaitsBehindANotice) {
    AppDelegate delegate(window, services);
    delegate.applicationPerformActionForShortcutItem({.type = "com.fenlow.tarnwick2.save"}, {});
    EXPECT_EQ(window.alerts().top()->alert().message,
              "Waiting for another run of Tarnwick to end...");
    endOtherProgramsRun();
    EXPECT_FALSE(isFree());
    EXPECT_EQ(window.alerts().numberShown(), 0);
    queues.stepGlobal();
    queues.stepMain();
    EXPECT_TRUE(isFree());
}

TEST_F(TaskGateTest, WhatWasCutOffIsRemembered) {
    otherProgram.reset();
    press("notesButton");
    EXPECT_EQ(RunLock(lockPath).left().what, "save notes");
    queues.stepGlobal();
    EXPECT_EQ(run.takeLeft().kind, LeftRun::Kind::None);
    RunLock(lockPath).record("restore notes");
    EXPECT_EQ(run.takeLeft().what, "restore notes");
    EXPECT_EQ(run.takeLeft().kind, LeftRun::Kind::None) << "told once";
}

}  // namespace
}  // namespace tarnwick::testing
