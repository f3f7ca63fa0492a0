#include "cli/Session.h"

#include <fcntl.h>
#include <unistd.h>

#include <cstdlib>

namespace tarnwick {

namespace {

// What no report is as a status.
constexpr int needsConfirmation = 100;

Colour colourFor(int descriptor) {
    const char* noColour = std::getenv("NO_COLOR");
    const bool refused = noColour != nullptr && *noColour != '\0';
    return ::isatty(descriptor) == 1 && !refused ? Colour::Coloured : Colour::Plain;
}

// No line for --json, which is for scripts, nor where commands print themselves.
int lineDescriptor(const World& world, const Arguments& arguments) {
    return arguments.json || arguments.verbose || arguments.dryRun ? -1 : world.streams.problems;
}

// Below 0 if it cannot be made, which the restore does not depend on.
int newLog(const std::string& path) {
    ::unlink(path.c_str());
    return ::open(path.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_APPEND | O_CLOEXEC, 0600);
}

}  // namespace

Session::Session(const World& world, const Arguments& arguments)
    : world_(world),
      arguments_(arguments),
      output_(world.streams, arguments.json ? Format::Json : Format::Text,
              colourFor(world.streams.problems)),
      questions_(world.streams, output_),
      line_(lineDescriptor(world, arguments)),
      feedback_(
          output_, line_,
          arguments.dryRun ? TerminalFeedback::Mode::Silent : TerminalFeedback::Mode::Talking),
      watch_(world.guard.runner(), world.guard.files(), feedback_),
      rehearsalRunner_(output_),
      rehearsalChanges_(output_) {
    const OperationServices services = {.catalogue = catalogue_,
                                        .runner = runner(),
                                        .files = files(),
                                        .changes = changes(),
                                        .feedback = feedback_,
                                        .queues = queues_};
    world_.guard.setFaultListener([this](const std::string& fault) { report(fault); });
    backup_.emplace(services);
    restore_.emplace(services);
    options_.emplace(services);
}

CommandRunner& Session::runner() {
    if (arguments_.dryRun)
        return rehearsalRunner_;
    return watch_;
}

CommandRunner& Session::archiveTester() {
    return arguments_.dryRun ? rehearsalRunner_ : world_.runner;
}

FileWriter& Session::changes() {
    if (arguments_.dryRun)
        return rehearsalChanges_;
    return world_.guard.files();
}

void Session::report(const std::string& fault) {
    if (!arguments_.dryRun)
        reportBeforehand(fault);
}

void Session::reportBeforehand(const std::string& fault) {
    JsonFields facts;
    if (!feedback_.current().empty())
        facts.emplace_back("item", feedback_.current());
    line_.without([&] { output_.complaint(fault, facts); });
    feedback_.noteFault(fault);
}

std::optional<ExitStatus> Session::refusal(const Alert& question) {
    return refusal({{"question", question.message}}, [&] { return questions_.confirm(question); });
}

std::optional<ExitStatus> Session::refusal(const JsonFields& facts,
                                           const std::function<bool()>& ask) {
    if (arguments_.yes || arguments_.dryRun)
        return std::nullopt;
    if (!questions_.canAsk()) {
        output_.complaint("this needs a confirmation; without a terminal, use --yes", facts);
        return WrongUsage;
    }
    return ask() ? std::nullopt : std::optional(NotAllDone);
}

int Session::workAndReport(const Undertaking& task) {
    if (task.hasRisk() && !arguments_.yes && !arguments_.dryRun)
        return needsConfirmation;
    task.work();
    line_.stop();
    if (output_.lostResult()) {
        output_.complaint(lostResultText);
        feedback_.noteProblem();
    }
    return feedback_.report().asStatus();
}

void Session::tidyUpAfter(const Undertaking& task) {
    world_.guard.clearUp();
    for (const std::string& line : task.repairs)
        runner().run(line);
    line_.eraseLeftover();
}

void Session::warnOfInterrupt(const Undertaking& task) {
    line_.without([&] {
        output_.complaint(
            "a restore is under way; if it ends now, data may be incomplete and "
            "belong to root" +
            std::string(task.installsPackages ? ", and packages be missing" : "") +
            ". Press Ctrl-C again within 3 seconds to end it all the same");
    });
}

SupervisedRun Session::runInOwnProcess(const Undertaking& task) {
    SupervisedWork supervised = {.work = [&] { return workAndReport(task); },
                                 .tidyUp = [&] { tidyUpAfter(task); },
                                 .endsGently = task.installsPackages};
    if (!task.isRestore)
        return world_.supervise(supervised);
    supervised.warn = [&] { warnOfInterrupt(task); };
    const Descriptor log(newLog(world_.logPath));
    output_.copyTo(log.number());
    const SupervisedRun run = world_.supervise(supervised);
    if (run.wasHungUp)
        output_.complaint("it ended with status " + std::to_string(run.status));
    else
        ::unlink(world_.logPath.c_str());
    output_.copyTo(-1);
    return run;
}

void Session::settleRecord(const Undertaking& task, const SupervisedRun& run) {
    if (!lock_ || task.what.empty())
        return;
    if (run.wasHungUp)
        lock_->recordUnseen(task.what);
    else
        lock_->clear();
}

std::optional<ExitStatus> Session::failureOf(const Undertaking& task, SupervisedRun::End end) {
    if (end == SupervisedRun::End::Finished)
        return std::nullopt;
    const bool interrupted = end == SupervisedRun::End::Interrupted;
    output_.complaint((interrupted ? "interrupted" : "the run ended unexpectedly") +
                          (task.what.empty() ? "" : "; to be run again: tarnwick " + task.what),
                      task.what.empty() ? JsonFields() : JsonFields{{"again", task.what}});
    return interrupted ? Interrupted : NotAllDone;
}

ExitStatus Session::performConfirmed(Undertaking task) {
    if (const auto refused =
            refusal({{"question", "Go on ?"}}, [this] { return questions_.confirm("Go on"); }))
        return *refused;
    task.hasRisk = [] { return false; };
    return perform(task);
}

ExitStatus Session::perform(const Undertaking& task) {
    SupervisedRun run = {SupervisedRun::End::Finished};
    if (arguments_.dryRun) {
        run.status = workAndReport(task);
    } else {
        if (lock_ && !task.what.empty())
            lock_->record(task.what);
        run = runInOwnProcess(task);
        settleRecord(task, run);
    }
    if (const auto failure = failureOf(task, run.end))
        return *failure;
    if (run.status == needsConfirmation)
        return performConfirmed(task);
    const RunReport report = RunReport::fromStatus(run.status);
    task.afterwards(report);
    return report.hasProblem ? NotAllDone : AllDone;
}

}  // namespace tarnwick
