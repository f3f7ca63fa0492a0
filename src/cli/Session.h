#pragma once

#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "backup/BackupOperations.h"
#include "cli/Arguments.h"
#include "cli/ExitStatus.h"
#include "cli/InPlaceQueues.h"
#include "cli/Output.h"
#include "cli/ProgressLine.h"
#include "cli/Questions.h"
#include "cli/Rehearsal.h"
#include "cli/Streams.h"
#include "cli/Supervisor.h"
#include "cli/TerminalFeedback.h"
#include "core/CommandRunner.h"
#include "core/FileManager.h"
#include "core/ItemCatalogue.h"
#include "options/OptionsOperations.h"
#include "restore/RestoreOperations.h"

namespace tarnwick {

// What the command finds around it; tests give it another one.
struct World {
    Streams streams;
    CommandRunner& runner;
    FileManager& files;
    bool isRoot;
    std::string lockPath;
    std::string mailerProgram;
    std::function<SupervisedRun(const std::function<int()>& work,
                                const std::function<void()>& tidyUp)>
        supervise;
};

// One run of the command: the operations, wired to a terminal, or to a rehearsal for --dry-run.
class Session {
public:
    Session(const World& world, const Arguments& arguments);
    Session(const Session&) = delete;
    Session& operator=(const Session&) = delete;

    // Nothing if the question may be taken as answered with yes; otherwise the status to end with.
    std::optional<ExitStatus> refusal(const Alert& question);

    // Does the work in a process of its own; then what is to be done afterwards, unless the work
    // did not come to its end: in that case takes the leftovers away.
    ExitStatus perform(
        const std::function<void()>& work, const std::vector<std::string>& leftovers,
        const std::function<void(const RunReport&)>& afterwards = [](const RunReport&) {});

    const World& world;
    const Arguments& arguments;
    Output output;
    Questions questions;
    const ItemCatalogue catalogue;

private:
    std::optional<ExitStatus> failureOf(SupervisedRun::End end);

    RehearsalRunner rehearsalRunner_;
    RehearsalFileManager rehearsalFiles_;
    ProgressLine line_;
    InPlaceQueues queues_;

public:
    CommandRunner& runner;
    FileManager& files;
    TerminalFeedback feedback;
    BackupOperations backup;
    RestoreOperations restore;
    OptionsOperations options;
};

}  // namespace tarnwick
