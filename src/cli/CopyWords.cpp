#include "cli/CopyWords.h"

#include <fcntl.h>
#include <unistd.h>

#include <cerrno>

#include "core/Reasons.h"
#include "options/SizeFormatters.h"

namespace tarnwick {

std::string placedBy(const Session& session, const std::string& path) {
    return path.starts_with('/') ? path : session.world().workingFolder + "/" + path;
}

CopyProgress shownBy(Session& session) {
    return [&session](std::uint64_t done, std::uint64_t total) {
        session.feedback().transferred(done, total);
    };
}

std::string summaryOf(const Manifest& manifest) {
    return std::to_string(manifest.files.size()) + " files, " +
           memoryFormatterDouble(static_cast<double>(manifest.size())) + ", made " + manifest.made +
           " on " + manifest.device + " (" + manifest.system + ") by tarnwick " + manifest.program;
}

JsonFields fieldsOf(const Manifest& manifest) {
    return {{"files", static_cast<std::int64_t>(manifest.files.size())},
            {"bytes", static_cast<std::int64_t>(manifest.size())},
            {"made", manifest.made},
            {"device", manifest.device},
            {"system", manifest.system},
            {"tarnwick", manifest.program}};
}

CopyInput::CopyInput(const Session& session, const std::vector<std::string>& words)
    : input_(session.world().streams.input) {
    if (words.empty() || words.front() == "-")
        return;
    name_ = words.front();
    file_.emplace(::open(placedBy(session, name_).c_str(), O_RDONLY | O_CLOEXEC));
    error_ = file_->isOpen() ? 0 : errno;
}

std::optional<ExitStatus> CopyInput::refusal(Session& session) const {
    if (error_ != 0) {
        session.output().complaint(failureText(name_, "read", error_));
        return NotAllDone;
    }
    if (::isatty(number()) != 1)
        return std::nullopt;
    session.output().complaint("no copy comes from a terminal: give a file, or redirect the input");
    return WrongUsage;
}

}  // namespace tarnwick
