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
#include "options/OptionsOperations.h"
#include "restore/RestoreOperations.h"

namespace tarnwick {

// The environment of the command; tests supply another one.
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

// One run of the command: the operations, wired to a terminal, or to a rehearsal for --dry-run. The
// world and the arguments outlive it.
class Session {
public:
    Session(const World& world, const Arguments& arguments);
    Session(const Session&) = delete;
    Session& operator=(const Session&) = delete;

    const World& world() const { return world_; }
    const Arguments& arguments() const { return arguments_; }
    const ItemCatalogue& catalogue() const { return catalogue_; }
    const FileReader& files() const { return world_.files; }
    // These two print what they would do in a rehearsal.
    CommandRunner& runner();
    FileWriter& changes();

    Output& output() { return output_; }
    Questions& questions() { return questions_; }
    TerminalFeedback& feedback() { return feedback_; }

    BackupOperations& backup() { return *backup_; }
    RestoreOperations& restore() { return *restore_; }
    OptionsOperations& options() { return *options_; }

    // Null if the question counts as answered with yes; otherwise the status to end with.
    std::optional<ExitStatus> refusal(const Alert& question);

    // Does the work in a process of its own, then what is to be done afterwards. If the work does
    // not come to its end, removes the leftovers instead.
    ExitStatus perform(
        const std::function<void()>& work, const std::vector<std::string>& leftovers,
        const std::function<void(const RunReport&)>& afterwards = [](const RunReport&) {});

private:
    std::optional<ExitStatus> failureOf(SupervisedRun::End end);

    // Initialisers only bind references to other members, so that their order does not matter.
    const World& world_;
    const Arguments& arguments_;
    const ItemCatalogue catalogue_;
    Output output_;
    Questions questions_;
    ProgressLine line_;
    TerminalFeedback feedback_;
    RehearsalRunner rehearsalRunner_;
    RehearsalFileWriter rehearsalChanges_;
    InPlaceQueues queues_;
    // Set in the constructor's body, when everything that they use exists.
    std::optional<BackupOperations> backup_;
    std::optional<RestoreOperations> restore_;
    std::optional<OptionsOperations> options_;
};

}  // namespace tarnwick
