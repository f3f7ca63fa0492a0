#pragma once

#include "cli/TerminalFeedback.h"
#include "core/CommandRunner.h"
#include "core/FileManager.h"

namespace tarnwick {

// Runs lines as they are, and notes what a restore is about to copy but an archive does not have:
// that copy fails without a word.
class RestoreWatch : public CommandRunner {
public:
    RestoreWatch(CommandRunner& runner, const FileReader& files, TerminalFeedback& feedback)
        : runner_(runner), files_(files), feedback_(feedback) {}

    int run(const std::string& line) override;
    std::string takeLastWords() override { return runner_.takeLastWords(); }

private:
    CommandRunner& runner_;
    const FileReader& files_;
    TerminalFeedback& feedback_;
};

}  // namespace tarnwick
