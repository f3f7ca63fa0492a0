#include "guard/GuardedRunner.h"

#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cerrno>
#include <utility>

#include "core/Reasons.h"
#include "core/SafeguardPaths.h"
#include "core/SystemFileManager.h"
#include "guard/ArchiveEntries.h"
#include "guard/ForeignLinks.h"
#include "guard/LinksInTheWay.h"
#include "guard/PartialCopies.h"

namespace tarnwick {

namespace {

constexpr int notRun = 1 << 8;  // a status, as the shell would return it
constexpr int killallFoundNone = 1 << 8;
constexpr int unzipWarned = 1 << 8;
constexpr int unzipFoundDiskFull = 50 << 8;

std::string textOfStatus(int status) {
    if (WIFSIGNALED(status))
        return "ended by signal " + std::to_string(WTERMSIG(status));
    return "ended with status " + std::to_string(WEXITSTATUS(status));
}

// An application that is not running cannot be stopped, which is as good.
bool mayFail(const LineWords& words, int status) {
    const bool isKillall = words.program() == "killall" && !words.isPipeline();
    return (isKillall && status == killallFoundNone) ||
           (words.program() == "unzip" && status == unzipWarned);
}

// To open a pipe, a command would wait for ever.
bool isNoFile(const std::string& path) {
    struct stat status = {};
    return ::stat(path.c_str(), &status) == 0 && !S_ISREG(status.st_mode);
}

bool copiesBack(const LineWords& words) {
    return words.program() == "cp" && words.operand().starts_with(paths::unpackedTree);
}

// One line has a relative target.
std::string absolute(const std::string& path) {
    return (path.starts_with('/') ? "" : "/") + path;
}

std::string withoutSlashAtEnd(const std::string& path) {
    return path.substr(0, path.find_last_not_of('/') + 1);
}

// As `cp -R` names the copy of a folder.
std::string copyOf(const LineWords& words) {
    return withoutSlashAtEnd(absolute(words.last())) + "/" +
           paths::nameOf(withoutSlashAtEnd(words.operand()));
}

// The folder in which the line writes. Archives and lists are replaced, whatever they are.
std::string folderOfResult(const LineWords& words) {
    if (const auto list = words.after(">"))
        return paths::folderOf(*list);
    return words.program() == "zip" ? paths::folderOf(words.operand()) : absolute(words.last());
}

// The shell, too, may tell of a signal by a status.
bool wasCutShort(int status) {
    return WIFSIGNALED(status) || WEXITSTATUS(status) > 128 || status == unzipFoundDiskFull;
}

}  // namespace

GuardedRunner::GuardedRunner(CommandRunner& runner, const ScratchPlaces& places,
                             const FaultListener& faults, std::string root)
    : runner_(runner), places_(places), faults_(faults), root_(std::move(root)) {}

int GuardedRunner::run(const std::string& line) {
    const LineWords words(line);
    if (const auto link = foreignLinkIn(root_, folderOfResult(words))) {
        if (!hasNothingToWorkOn(words))
            faults_(textOfForeignLink(*link));
        noteCopy(words, notRun);
        return notRun;
    }
    if (const auto list = words.after(">"))
        return runIntoList(line, *list);
    if (const auto list = words.after("<"))
        return runFromList(line, *list);
    return runInPlace(line);
}

int GuardedRunner::runInPlace(const std::string& line) {
    places_.clearForeign();
    const LineWords words(line);
    if (words.program() == "unzip" && !mayBeUnpacked(words.operandOf("-d")))
        return notRun;
    const bool isIdle = hasNothingToWorkOn(words);
    if (copiesBack(words) && !isIdle)
        removeLinksInTheWay(root_ + words.operand(), root_ + copyOf(words));
    const auto claimed = places_.claimFor(line);
    runner_.takeLastWords();
    const auto begin = std::filesystem::file_time_type::clock::now();
    const int status = runner_.run(line);
    noteCopy(words, status);
    if (status == 0)
        return status;
    discardPartialResult(words, status, begin);
    // A claim that stays empty would pass for a copy.
    if (claimed)
        ::rmdir(claimed->c_str());
    if (!isIdle && !mayFail(words, status))
        report(line, status);
    return status;
}

void GuardedRunner::noteCopy(const LineWords& words, int status) {
    if (words.program() == "cp")
        lastCopyFailed_ = status != 0;
}

bool GuardedRunner::mayBeUnpacked(const std::string& archive) const {
    if (isNoFile(root_ + archive)) {
        faults_(failureText(archive, "read", ENOTSUP));
        return false;
    }
    const auto fault = faultOfEntries(root_ + archive);
    if (fault)
        faults_(archive + " is not unpacked: " + *fault);
    return !fault;
}

// What is there in part would replace what is whole.
void GuardedRunner::discardPartialResult(const LineWords& words, int status,
                                         std::filesystem::file_time_type begin) const {
    if (words.program() == "unzip" && wasCutShort(status))
        places_.clearUnpacked();
    else if (words.program() == "cp" && !copiesBack(words))
        removePartialCopies(root_ + words.operand(), root_ + copyOf(words), begin);
}

// The shell empties the list before it knows whether there will be another.
int GuardedRunner::runIntoList(const std::string& line, const std::string& list) {
    const KeptList kept(root_ + list);
    if (!kept.moveAside()) {
        faults_(failureText(list, "replaced", errno));
        return notRun;
    }
    runner_.takeLastWords();
    const int status = runner_.run(line);
    if (status != 0)
        report(line, status);
    if (kept.settle(status == 0))
        faults_(textOfRecovery(list));
    return status;
}

int GuardedRunner::runFromList(const std::string& line, const std::string& list) {
    if (!SystemFileManager(root_).readData(list)) {
        faults_(failureText(list, "read", errno));
        return notRun;
    }
    return runInPlace(line);
}

void GuardedRunner::report(const std::string& line, int status) {
    const std::string lastWords = runner_.takeLastWords();
    if (LineWords(line).program() == "unzip" && status == unzipFoundDiskFull)
        faults_(failureText(paths::unpackedTree, "written", ENOSPC));
    else
        faults_(lastWords.empty()
                    ? line + ": " + textOfStatus(status)
                    : clarified(lastWords, root_ + std::string(paths::scratchFolder)));
}

// The step before has failed then, and was reported: nothing was copied, or unpacked.
bool GuardedRunner::hasNothingToWorkOn(const LineWords& words) const {
    const std::string program = words.program();
    const bool lacksCopy = program == "zip" && lastCopyFailed_;
    if (!copiesBack(words) && !lacksCopy && program != "chown")
        return false;
    struct stat status = {};
    const std::string& subject = copiesBack(words) ? words.operand() : words.last();
    return ::lstat((root_ + withoutSlashAtEnd(subject)).c_str(), &status) != 0;
}

}  // namespace tarnwick
