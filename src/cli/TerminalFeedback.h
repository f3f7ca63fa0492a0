#pragma once

#include <functional>
#include <map>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "cli/Output.h"
#include "cli/ProgressLine.h"
#include "core/Feedback.h"

namespace tarnwick {

// The outcome of a run, which fits into the exit status of the process that did the work.
class RunReport {
public:
    static RunReport fromStatus(int status);
    int asStatus() const;

    bool hasProblem = false;
    // The strongest follow-up that was offered: a reboot does what a respring does.
    Offer offer = Offer::None;
};

// What became of one thing that a run works on.
struct Outcome {
    std::string fault = {};     // the first; empty if nothing failed
    std::string notFound = {};  // what its archive does not have; empty if nothing
};

// Shows a task on a terminal: the HUD is a line that shows the running item, an alert is a line of
// output. A question is kept, for the caller to ask.
class TerminalFeedback : public Feedback {
public:
    // A silent one, for a rehearsal, has questions and offers but no results.
    enum class Mode { Talking, Silent };

    TerminalFeedback(Output& output, ProgressLine& line, Mode mode);

    // The items that the run works on, in order.
    void setPlan(std::vector<const BackupItem*> plan);

    void showHud(std::string_view label) override;
    void hideHud() override;
    void show(const Alert& alert) override;
    void working(const BackupItem& item) override;
    // Writes other text while the line of the task is shown.
    void without(const std::function<void()>& write) { line_.without(write); }
    void transferred(std::uint64_t bytes, std::uint64_t total) { line_.setBytes(bytes, total); }

    // What follows concerns the thing of this word; none if it is empty.
    void begin(const std::string& word);
    // Empty if nothing was noted.
    Outcome outcomeOf(const std::string& word) const;
    // The word of the last thing begun.
    const std::string& current() const { return current_; }
    // A problem without an alert.
    void noteProblem() { report_.hasProblem = true; }
    void noteFault(const std::string& fault);
    void noteNotFound(const std::string& path) { outcomes_[current_].notFound = path; }
    const RunReport& report() const { return report_; }
    // What objects are to say about the alerts that follow.
    void setFacts(std::function<JsonFields()> facts) { facts_ = std::move(facts); }
    // The question shown since the last call; null if there was none.
    std::optional<Alert> takeQuestion();

private:
    Output& output_;
    ProgressLine& line_;
    const Mode mode_;
    std::vector<const BackupItem*> plan_;
    std::size_t place_ = 0;
    RunReport report_;
    std::string current_;
    std::map<std::string, Outcome> outcomes_;
    std::function<JsonFields()> facts_;
    std::optional<Alert> question_;
};

}  // namespace tarnwick
