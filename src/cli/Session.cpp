#include "cli/Session.h"

#include <unistd.h>

#include <cstdlib>

namespace tarnwick {

namespace {

Colour colourFor(int descriptor) {
    const char* noColour = std::getenv("NO_COLOR");
    const bool refused = noColour != nullptr && *noColour != '\0';
    return ::isatty(descriptor) == 1 && !refused ? Colour::Coloured : Colour::Plain;
}

// No line for --json, which is for scripts, nor where commands print themselves.
int lineDescriptor(const World& world, const Arguments& arguments) {
    return arguments.json || arguments.verbose || arguments.dryRun ? -1 : world.streams.problems;
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
      rehearsalRunner_(output_),
      rehearsalChanges_(output_) {
    const OperationServices services = {.catalogue = catalogue_,
                                        .runner = runner(),
                                        .files = files(),
                                        .changes = changes(),
                                        .feedback = feedback_,
                                        .queues = queues_};
    backup_.emplace(services);
    restore_.emplace(services);
    options_.emplace(services);
}

CommandRunner& Session::runner() {
    if (arguments_.dryRun)
        return rehearsalRunner_;
    return world_.runner;
}

FileWriter& Session::changes() {
    if (arguments_.dryRun)
        return rehearsalChanges_;
    return world_.files;
}

std::optional<ExitStatus> Session::refusal(const Alert& question) {
    if (arguments_.yes || arguments_.dryRun)
        return std::nullopt;
    if (!questions_.canAsk()) {
        output_.complaint("this needs a confirmation; without a terminal, use --yes");
        return WrongUsage;
    }
    if (questions_.confirm(question))
        return std::nullopt;
    return NotAllDone;
}

std::optional<ExitStatus> Session::failureOf(SupervisedRun::End end) {
    if (end == SupervisedRun::End::Finished)
        return std::nullopt;
    const bool interrupted = end == SupervisedRun::End::Interrupted;
    output_.complaint(interrupted ? "interrupted" : "the run ended unexpectedly");
    return interrupted ? Interrupted : NotAllDone;
}

ExitStatus Session::perform(const std::function<void()>& work,
                            const std::vector<std::string>& leftovers,
                            const std::function<void(const RunReport&)>& afterwards) {
    const auto reportedWork = [&work, this] {
        work();
        line_.stop();
        return feedback_.report().asStatus();
    };
    const auto tidyUp = [&leftovers, this] {
        for (const std::string& leftover : leftovers)
            changes().remove(leftover);
        line_.eraseLeftover();
    };
    const SupervisedRun run = arguments_.dryRun
                                  ? SupervisedRun{SupervisedRun::End::Finished, reportedWork()}
                                  : world_.supervise(reportedWork, tidyUp);
    if (const auto failure = failureOf(run.end))
        return *failure;
    const RunReport report = RunReport::fromStatus(run.status);
    afterwards(report);
    return report.hasProblem ? NotAllDone : AllDone;
}

}  // namespace tarnwick
