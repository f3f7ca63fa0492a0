// What export and import have in common.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "cli/Json.h"
#include "cli/Session.h"
#include "copy/CopyProgress.h"
#include "copy/Manifest.h"

namespace tarnwick {

// A path as the caller means it.
std::string placedBy(const Session& session, const std::string& path);

CopyProgress shownBy(Session& session);

// "15 files, 453.21 MB, made 2026-11-24T08:00:00Z on iPhone8,1 (Linux 6.1) by tarnwick 2.0.0"
std::string summaryOf(const Manifest& manifest);
JsonFields fieldsOf(const Manifest& manifest);

// The file that a command names, or else its input.
class CopyInput {
public:
    CopyInput(const Session& session, const std::vector<std::string>& words);

    // Complains, and returns the status to end with, if no copy can be read from it.
    std::optional<ExitStatus> refusal(Session& session) const;
    int number() const { return file_ ? file_->number() : input_; }
    const std::string& name() const { return name_; }

private:
    const int input_;
    std::string name_ = "the input";
    std::optional<Descriptor> file_;
    int error_ = 0;
};

}  // namespace tarnwick
