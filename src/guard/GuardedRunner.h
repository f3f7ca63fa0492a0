#pragma once

#include <atomic>
#include <filesystem>
#include <string>

#include "core/CommandRunner.h"
#include "guard/KeptList.h"
#include "guard/LineWords.h"
#include "guard/ScratchPlaces.h"

namespace tarnwick {

// Runs lines as they are, but in places that are safe, and reports what failed. All paths are below
// the root.
class GuardedRunner : public CommandRunner {
public:
    GuardedRunner(CommandRunner& runner, const ScratchPlaces& places, const FaultListener& faults,
                  std::string root);

    int run(const std::string& line) override;
    std::string takeLastWords() override { return runner_.takeLastWords(); }

private:
    int runInPlace(const std::string& line);
    int runIntoList(const std::string& line, const std::string& list);
    void noteCopy(const LineWords& words, int status);
    bool mayBeUnpacked(const std::string& archive) const;
    int runFromList(const std::string& line, const std::string& list);
    void discardPartialResult(const LineWords& words, int status,
                              std::filesystem::file_time_type begin) const;
    void report(const std::string& line, int status);
    bool hasNothingToWorkOn(const LineWords& words) const;

    CommandRunner& runner_;
    const ScratchPlaces& places_;
    const FaultListener& faults_;
    const std::string root_;
    std::atomic<bool> lastCopyFailed_ = false;
};

}  // namespace tarnwick
