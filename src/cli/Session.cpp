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

// Where no line is wanted: objects are for scripts, and commands that talk would write across it.
int lineDescriptor(const World& world, const Arguments& arguments) {
    return arguments.json || arguments.verbose || arguments.dryRun ? -1 : world.streams.problems;
}

}  // namespace

Session::Session(const World& surroundings, const Arguments& typed)
    : world(surroundings),
      arguments(typed),
      output(world.streams, typed.json ? Format::Json : Format::Text,
             colourFor(world.streams.problems)),
      questions(world.streams, output),
      rehearsalRunner_(output),
      rehearsalFiles_(world.files, output),
      line_(lineDescriptor(world, typed)),
      runner(typed.dryRun ? rehearsalRunner_ : world.runner),
      files(typed.dryRun ? rehearsalFiles_ : world.files),
      feedback(output, line_,
               typed.dryRun ? TerminalFeedback::Mode::Silent : TerminalFeedback::Mode::Telling),
      backup(catalogue, runner, files, feedback, queues_),
      restore(catalogue, runner, files, feedback, queues_),
      options(catalogue, runner, files, feedback, queues_) {}

std::optional<ExitStatus> Session::refusal(const Alert& question) {
    if (arguments.yes || arguments.dryRun)
        return std::nullopt;
    if (!questions.canAsk()) {
        output.complaint("this asks for a confirmation; without a terminal to ask on, say --yes");
        return WrongUsage;
    }
    if (questions.confirm(question))
        return std::nullopt;
    return NotAllDone;
}

std::optional<ExitStatus> Session::failureOf(SupervisedRun::End end) {
    if (end == SupervisedRun::End::Finished)
        return std::nullopt;
    const bool interrupted = end == SupervisedRun::End::Interrupted;
    output.complaint(interrupted ? "interrupted" : "the run ended unexpectedly");
    return interrupted ? Interrupted : NotAllDone;
}

ExitStatus Session::perform(const std::function<void()>& work,
                            const std::vector<std::string>& leftovers,
                            const std::function<void(const RunReport&)>& afterwards) {
    const auto reportedWork = [&work, this] {
        work();
        line_.stop();
        return feedback.report().asStatus();
    };
    const auto tidyUp = [&leftovers, this] {
        for (const std::string& leftover : leftovers)
            files.remove(leftover);
        line_.eraseLeftover();
    };
    const SupervisedRun run = arguments.dryRun
                                  ? SupervisedRun{SupervisedRun::End::Finished, reportedWork()}
                                  : world.supervise(reportedWork, tidyUp);
    if (const auto failure = failureOf(run.end))
        return *failure;
    const RunReport report = RunReport::fromStatus(run.status);
    afterwards(report);
    return report.hasProblem ? NotAllDone : AllDone;
}

}  // namespace tarnwick
