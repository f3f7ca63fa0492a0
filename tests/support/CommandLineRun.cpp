#include "support/CommandLineRun.h"

#include <fcntl.h>
#include <sys/mman.h>
#include <unistd.h>

#include <sstream>

namespace tarnwick::testing {

namespace {

std::string contentOf(int descriptor) {
    std::string text(static_cast<std::size_t>(::lseek(descriptor, 0, SEEK_END)), '\0');
    const ssize_t count = ::pread(descriptor, text.data(), text.size(), 0);
    return text.substr(0, static_cast<std::size_t>(count));
}

void empty(int descriptor) {
    static_cast<void>(!::ftruncate(descriptor, 0));
    ::lseek(descriptor, 0, SEEK_SET);
}

}  // namespace

CommandLineRun::CommandLineRun()
    : input_(::open("/dev/null", O_RDONLY | O_CLOEXEC)),
      results_(::memfd_create("results", MFD_CLOEXEC)),
      problems_(::memfd_create("problems", MFD_CLOEXEC)) {}

CommandLineRun::~CommandLineRun() {
    for (const int descriptor : {input_, results_, problems_})
        ::close(descriptor);
}

int CommandLineRun::operator()(const std::string& words) {
    empty(results_);
    empty(problems_);
    diary.entries.clear();
    std::istringstream stream(words);
    std::vector<std::string> typed;
    for (std::string word; stream >> word;)
        typed.push_back(word);
    const World world = {
        .streams = {input.value_or(terminal.value_or(input_)), results_,
                    terminal.value_or(problems_)},
        .runner = runner,
        .files = files,
        .guard = guard,
        .isRoot = isRoot,
        .lockPath = lockPath,
        .logPath = logPath,
        .mailerProgram = mailerProgram,
        .supervise =
            [this](const SupervisedWork& supervised) {
                if (end == SupervisedRun::End::Finished)
                    return SupervisedRun{end, supervised.work(), isHungUp};
                supervised.tidyUp();
                return SupervisedRun{end};
            },
        .root = folder.path(),
        .workingFolder = folder.path(),
    };
    return runCommandLine(parseArguments(typed), world);
}

std::string CommandLineRun::results() const {
    return contentOf(results_);
}

std::string CommandLineRun::problems() const {
    return contentOf(problems_);
}

}  // namespace tarnwick::testing
