#include "cli/CommandLine.h"

#include <algorithm>
#include <cerrno>

#include "cli/CommandTable.h"
#include "cli/Commands.h"
#include "core/JoinedText.h"
#include "core/Reasons.h"

namespace tarnwick {

namespace {

// What is wrong with the options, for this command.
std::optional<std::string> faultOf(const Command& command, const Arguments& arguments) {
    for (const Option& option : optionTable())
        if (std::ranges::count(arguments.options, option.word) > 0 && !knowsOption(command, option))
            return command.name + " does not know " + option.word;
    return std::nullopt;
}

// What is wrong with the words after the command's name.
std::optional<std::string> faultOf(const Command& command, const std::vector<std::string>& words) {
    for (const std::string& word : words) {
        if (command.takesFile)
            break;
        if (command.words.empty())
            return command.name + " takes no more words";
        if (std::find(command.words.begin(), command.words.end(), word) == command.words.end())
            return unknownWord("word for " + command.name, word, command.words);
    }
    if (words.size() < command.fewestWords)
        return command.name + " needs one of: " + joined(command.words, ", ");
    if (words.size() > command.mostWords)
        return command.name + (command.takesFile ? " takes one file only" : " takes one word only");
    return std::nullopt;
}

ExitStatus wrongUsage(Session& session, const std::string& fault) {
    session.output().complaint(fault);
    if (!session.arguments().json)
        session.output().prompt("Try \"tarnwick --help\".\n");
    return WrongUsage;
}

ExitStatus runLocked(Session& session, const Command& command,
                     const std::vector<std::string>& words) {
    if (!session.world().isRoot) {
        session.output().complaint(command.name + " needs root");
        return NotRoot;
    }
    const RunLock& lock = session.takeLock();
    if (lock.state() == RunLock::State::TakenByAnother) {
        session.output().complaint("another run is under way");
        return RunUnderWay;
    }
    // On a device that can only be read, nothing changes while it is read.
    const bool isSafe = command.reach == Reach::Reads && lock.error() == EROFS;
    if (lock.state() == RunLock::State::Unavailable && !isSafe) {
        session.output().complaint("cannot tell whether another run is under way: " +
                                   failureText(session.world().lockPath, "opened", lock.error()));
        return NotAllDone;
    }
    session.world().guard.clearUp();
    return command.run(session, words);
}

// Of the run before, if its end was not seen and no run is under way.
void mentionLeftRun(Session& session) {
    const World& world = session.world();
    if (!world.isRoot || session.arguments().dryRun || !hasLeftRun(world.lockPath))
        return;
    const RunLock lock(world.lockPath);
    if (lock.state() != RunLock::State::Held)
        return;
    session.output().complaint(textOf(lock.left()), {{"again", lock.left().what}});
    lock.clear();
}

// A rehearsal changes nothing, nor does the look at a copy, which may be done on any machine.
bool needsLock(const Command& command, const Arguments& arguments) {
    return command.reach != Reach::Looks && !arguments.dryRun && !arguments.verify;
}

ExitStatus runCommand(Session& session, const Command& command,
                      const std::vector<std::string>& words) {
    if (const auto fault = faultOf(command, session.arguments()))
        return wrongUsage(session, *fault);
    if (const auto fault = faultOf(command, words))
        return wrongUsage(session, *fault);
    mentionLeftRun(session);
    if (needsLock(command, session.arguments()))
        return runLocked(session, command, words);
    return command.run(session, words);
}

ExitStatus runWords(Session& session, const std::vector<std::string>& words) {
    const auto commands = commandTable(session.catalogue());
    const Command* command = commandOf(commands, words.front());
    if (command == nullptr)
        return wrongUsage(session, unknownWord("command", words.front(), commandNames(commands)));
    if (session.arguments().help)
        return showHelp(session, {command->name});
    return runCommand(session, *command, {words.begin() + 1, words.end()});
}

ExitStatus run(Session& session) {
    const Arguments& arguments = session.arguments();
    if (arguments.fault)
        return wrongUsage(session, *arguments.fault);
    if (arguments.version) {
        session.output().result("tarnwick " TARNWICK_VERSION, {{"version", TARNWICK_VERSION}});
        return AllDone;
    }
    if (!arguments.words.empty())
        return runWords(session, arguments.words);
    return arguments.help ? showHelp(session, {}) : wrongUsage(session, "say what to do");
}

}  // namespace

ExitStatus runCommandLine(const Arguments& arguments, const World& world) {
    Session session(world, arguments);
    const ExitStatus status = run(session);
    if (status != AllDone || !session.output().lostResult())
        return status;
    session.output().complaint(lostResultText);
    return NotAllDone;
}

}  // namespace tarnwick
