#pragma once

#include <gtest/gtest.h>

#include <QCoreApplication>
#include <memory>

#include "app/AppDelegate.h"
#include "app/MainInterface.h"
#include "core/Log.h"
#include "platform/controllers/NavigationController.h"
#include "platform/windows/AlertView.h"
#include "platform/windows/Window.h"
#include "support/Diary.h"
#include "support/RecordingMailer.h"
#include "support/SteppedClock.h"
#include "ui/reveal/RevealViewController.h"

namespace tarnwick::testing {

class KeptLog : public Log {
public:
    void write(std::string_view line) override { lines += std::string(line) + "\n"; }
    std::string lines;
};

// The program in a phone's window, over an empty folder, with a runner that only writes down.
// Whatever QML complains about fails the test that is running.
class ProgramWindow : public ::testing::Test {
protected:
    // Other queues than the stepped ones must keep the diary to one thread at a time.
    explicit ProgramWindow(std::unique_ptr<TaskQueues> others = nullptr)
        : otherQueues(std::move(others)),
          services{catalogue, runner,
                   files,     otherQueues ? *otherQueues : static_cast<TaskQueues&>(queues),
                   gate,      window.alerts(),
                   mailer,    log} {
        qInstallMessageHandler([](QtMsgType type, const QMessageLogContext&, const QString& text) {
            if (type == QtWarningMsg && !text.startsWith("QStandardPaths"))
                ADD_FAILURE() << text.toStdString();
        });
        window.resize(375, 667);
        window.show();
        QCoreApplication::processEvents();  // it takes its size then
        storyboard = loadMainStoryboard(services);
        reveal = std::static_pointer_cast<RevealViewController>(
            storyboard->instantiateInitialViewController());
        window.setRootViewController(reveal);
    }
    ~ProgramWindow() override {
        window.setRootViewController(nullptr);
        reveal.reset();
        finishDeletions();
        qInstallMessageHandler(nullptr);
    }

    // The screen in front.
    ViewController& screen() {
        auto& navigation = static_cast<NavigationController&>(*reveal->frontViewController());
        return *navigation.rootViewController();
    }
    QQuickItem* element(const char* name) { return screen().view()->findChild<QQuickItem*>(name); }
    void press(const char* name) { QMetaObject::invokeMethod(element(name), "clicked"); }
    // A row of the menu.
    void choose(const QString& row) {
        reveal->rearViewController()->performSegue(row);
        clock.advance(1.0);
    }
    // Of the newest alert, which then goes; empty if there is none.
    std::string answerAlert(int index) {
        AlertView* alert = window.alerts().top();
        if (alert == nullptr)
            return {};
        const std::string text = textOf(alert->alert());
        emit alert->buttonPressed(index);
        clock.advance(0.5);
        return text;
    }

    TemporaryFolder folder;
    Diary diary;
    SteppedClock clock;
    ItemCatalogue catalogue;
    RecordingRunner runner{diary};
    RecordingFileManager files{diary, folder};
    Guard guard{catalogue, runner, files, [](const std::string&) {}, folder.path()};
    SharedRun run{guard, folder.path() + "/lock"};
    TaskGate gate{run};
    SteppedQueues queues{diary};
    const std::unique_ptr<TaskQueues> otherQueues;
    RecordingMailer mailer;
    KeptLog log;
    Window window;
    ScreenServices services;
    std::shared_ptr<const Storyboard> storyboard;
    std::shared_ptr<RevealViewController> reveal;
};

}  // namespace tarnwick::testing
