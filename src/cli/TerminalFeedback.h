#pragma once

#include <optional>
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

    // A problem without an alert.
    void noteProblem() { report_.hasProblem = true; }
    const RunReport& report() const { return report_; }
    // The question shown since the last call; null if there was none.
    std::optional<Alert> takeQuestion();

private:
    Output& output_;
    ProgressLine& line_;
    const Mode mode_;
    std::vector<const BackupItem*> plan_;
    std::size_t place_ = 0;
    RunReport report_;
    std::optional<Alert> question_;
};

}  // namespace tarnwick
