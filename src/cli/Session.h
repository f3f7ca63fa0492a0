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
#include "cli/RestoreWatch.h"
#include "cli/Streams.h"
#include "cli/Supervisor.h"
#include "cli/TerminalFeedback.h"
#include "guard/Guard.h"
#include "guard/RunLock.h"
#include "options/OptionsOperations.h"
#include "restore/RestoreOperations.h"

namespace tarnwick {

// The environment of the command; tests supply another one.
struct World {
    Streams streams;
    CommandRunner& runner;
    FileManager& files;
    Guard& guard;  // of the two above
    bool isRoot;
    std::string lockPath;
    std::string logPath;  // of a run that goes on when its terminal hangs up
    std::string mailerProgram;
    std::function<SupervisedRun(const SupervisedWork& supervised)> supervise;
    std::string root = {};           // where the device's paths begin
    std::string workingFolder = {};  // of the caller, where the paths of files begin
};

inline constexpr const char* lostResultText = "the results cannot be written";

// What a verb does in a process of its own.
struct Undertaking {
    // Says what speaks against the work, if anything does: then it needs a confirmation.
    std::function<bool()> hasRisk = [] { return false; };
    std::function<void()> work;
    // Lines that are run if it does not come to its end, to leave what was begun in order.
    std::vector<std::string> repairs = {};
    // After the end of the work.
    std::function<void(const RunReport&)> afterwards = [](const RunReport&) {};
    // What to run again if it is cut off, such as "save notes"; empty if that is of no use.
    std::string what = {};
    // Puts data back, which should not be left half done.
    bool isRestore = false;
    bool installsPackages = false;
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
    const FileReader& files() const { return world_.guard.files(); }
    // These two print what they would do in a rehearsal.
    CommandRunner& runner();
    FileWriter& changes();
    // For lines whose failure is a verdict rather than a fault.
    CommandRunner& archiveTester();
    // Holds it until the session ends.
    const RunLock& takeLock() { return lock_.emplace(world_.lockPath); }

    Output& output() { return output_; }
    Questions& questions() { return questions_; }
    TerminalFeedback& feedback() { return feedback_; }

    BackupOperations& backup() { return *backup_; }
    RestoreOperations& restore() { return *restore_; }
    OptionsOperations& options() { return *options_; }

    // Complains of what is missing or has failed; the run is not all done then. A rehearsal, in
    // which nothing fails, has no such report.
    void report(const std::string& fault);
    // The same, also in a rehearsal: of what is known beforehand.
    void reportBeforehand(const std::string& fault);

    // Null if the question counts as answered with yes; otherwise the status to end with.
    std::optional<ExitStatus> refusal(const Alert& question);

    ExitStatus perform(const Undertaking& task);

private:
    int workAndReport(const Undertaking& task);
    void tidyUpAfter(const Undertaking& task);
    void warnOfInterrupt(const Undertaking& task);
    SupervisedRun runInOwnProcess(const Undertaking& task);
    void settleRecord(const Undertaking& task, const SupervisedRun& run);
    ExitStatus performConfirmed(Undertaking task);
    std::optional<ExitStatus> refusal(const JsonFields& facts, const std::function<bool()>& ask);
    std::optional<ExitStatus> failureOf(const Undertaking& task, SupervisedRun::End end);

    // Initialisers only bind references to other members, so that their order does not matter.
    const World& world_;
    const Arguments& arguments_;
    const ItemCatalogue catalogue_;
    Output output_;
    Questions questions_;
    ProgressLine line_;
    TerminalFeedback feedback_;
    RestoreWatch watch_;
    RehearsalRunner rehearsalRunner_;
    RehearsalFileWriter rehearsalChanges_;
    InPlaceQueues queues_;
    std::optional<RunLock> lock_;
    // Set in the constructor's body, when everything that they use exists.
    std::optional<BackupOperations> backup_;
    std::optional<RestoreOperations> restore_;
    std::optional<OptionsOperations> options_;
};

}  // namespace tarnwick
