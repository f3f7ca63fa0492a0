#include "cli/TerminalFeedback.h"

#include <algorithm>
#include <utility>

#include "cli/Words.h"
#include "restore/RestoreOperations.h"

namespace tarnwick {

namespace {

constexpr int problemBit = 1;
constexpr int offerShift = 1;

std::string wordOf(Offer offer) {
    return offer == Offer::Reboot ? "reboot" : "respring";
}

Offer offerOf(const Alert& alert) {
    if (alert.otherButtonTitles.empty())
        return Offer::None;
    return alert.tag == RestoreOperations::RebootTag ? Offer::Reboot : Offer::Respring;
}

}  // namespace

RunReport RunReport::fromStatus(int status) {
    RunReport report;
    report.hasProblem = (status & problemBit) != 0;
    report.offer = static_cast<Offer>(status >> offerShift);
    return report;
}

int RunReport::asStatus() const {
    return (hasProblem ? problemBit : 0) | (static_cast<int>(offer) << offerShift);
}

TerminalFeedback::TerminalFeedback(Output& output, ProgressLine& line, Mode mode)
    : output_(output), line_(line), mode_(mode) {}

void TerminalFeedback::setPlan(std::vector<const BackupItem*> plan) {
    plan_ = std::move(plan);
    place_ = 0;
}

void TerminalFeedback::showHud(std::string_view label) {
    if (mode_ == Mode::Talking)
        line_.start(std::string(label));
}

void TerminalFeedback::hideHud() {
    line_.stop();
}

void TerminalFeedback::show(const Alert& alert) {
    if (alert.kind == AlertKind::Question) {
        question_ = alert;
        return;
    }
    const Offer offer = offerOf(alert);
    report_.offer = std::max(report_.offer, offer);
    if (mode_ == Mode::Silent)
        return;
    JsonFields facts = facts_ ? facts_() : JsonFields();
    if (offer != Offer::None)
        facts.emplace_back("offer", wordOf(offer));
    line_.without([&] { output_.alert(alert, facts); });
    report_.hasProblem = report_.hasProblem || alert.kind == AlertKind::Problem;
}

void TerminalFeedback::working(const BackupItem& item) {
    begin(kebabCase(item.key));
    place_ = std::min(place_ + 1, plan_.size());
    line_.setItem(current_, place_, plan_.size());
}

void TerminalFeedback::begin(const std::string& word) {
    current_ = word;
}

Outcome TerminalFeedback::outcomeOf(const std::string& word) const {
    const auto found = outcomes_.find(word);
    return found == outcomes_.end() ? Outcome() : found->second;
}

void TerminalFeedback::noteFault(const std::string& fault) {
    noteProblem();
    std::string& first = outcomes_[current_].fault;
    if (first.empty())
        first = fault;
}

std::optional<Alert> TerminalFeedback::takeQuestion() {
    return std::exchange(question_, std::nullopt);
}

}  // namespace tarnwick
