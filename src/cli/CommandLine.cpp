#include "cli/CommandLine.h"

#include <algorithm>

#include "cli/CommandTable.h"
#include "core/JoinedText.h"
#include "core/Reasons.h"

namespace tarnwick {

namespace {

std::vector<std::string> namesOf(const std::vector<Command>& commands) {
    std::vector<std::string> names;
    for (const Command& command : commands)
        names.push_back(command.name);
    return names;
}

const Command* commandOf(const std::vector<Command>& commands, const std::string& name) {
    const auto found =
        std::find_if(commands.begin(), commands.end(),
                     [&name](const Command& command) { return command.name == name; });
    return found == commands.end() ? nullptr : &*found;
}

// What is wrong with the words after the command's name.
std::optional<std::string> faultOf(const Command& command, const std::vector<std::string>& words) {
    for (const std::string& word : words) {
        if (command.words.empty())
            return command.name + " takes no more words";
        if (std::find(command.words.begin(), command.words.end(), word) == command.words.end())
            return unknownWord("word for " + command.name, word, command.words);
    }
    if (words.size() < command.fewestWords)
        return command.name + " needs one of: " + joined(command.words, ", ");
    if (words.size() > command.mostWords)
        return command.name + " takes one word only";
    return std::nullopt;
}

ExitStatus wrongUsage(Session& session, const std::string& fault) {
    session.output().complaint(fault);
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
    if (lock.state() == RunLock::State::Unavailable) {
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
    session.output().complaint(textOf(lock.left()));
    lock.clear();
}

ExitStatus runCommand(Session& session, const std::string& name,
                      const std::vector<std::string>& words) {
    const auto commands = commandTable(session.catalogue());
    const Command* command = commandOf(commands, name);
    if (command == nullptr)
        return wrongUsage(session, unknownWord("command", name, namesOf(commands)));
    if (const auto fault = faultOf(*command, words))
        return wrongUsage(session, *fault);
    mentionLeftRun(session);
    if (command->reach == Reach::Changes && !session.arguments().dryRun)
        return runLocked(session, *command, words);
    return command->run(session, words);
}

ExitStatus run(Session& session) {
    const Arguments& arguments = session.arguments();
    if (arguments.fault)
        return wrongUsage(session, *arguments.fault);
    if (arguments.help) {
        const std::string help = helpText(session.catalogue());
        session.output().result(help, {{"help", help}});
        return AllDone;
    }
    if (arguments.version) {
        session.output().result("tarnwick " TARNWICK_VERSION, {{"version", TARNWICK_VERSION}});
        return AllDone;
    }
    if (arguments.words.empty())
        return wrongUsage(session, "say what to do");
    return runCommand(session, arguments.words.front(),
                      {arguments.words.begin() + 1, arguments.words.end()});
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
