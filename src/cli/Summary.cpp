#include "cli/Summary.h"

#include <algorithm>

#include "cli/SavedThings.h"
#include "cli/Words.h"
#include "core/SafeguardPaths.h"
#include "options/SizeFormatters.h"

namespace tarnwick {

namespace {

struct Ending {
    std::string outcome;
    std::string reason = {};
    std::optional<std::int64_t> bytes = {};
    bool isProblem = false;
};

Ending failure(const std::string& reason) {
    return {.outcome = "failed", .reason = reason, .isProblem = true};
}

Ending endingOfSave(const Session& session, const SavedThing& thing, const Outcome& noted) {
    const FileReader& files = session.files();
    if (!hasOriginal(files, thing))
        return {.outcome = "nothing to save"};
    if (!noted.fault.empty())
        return failure(noted.fault);
    if (!hasEveryCopy(files, thing))
        return failure("there is no " + paths::nameOf(thing.copies.back()));
    return {.outcome = "saved", .bytes = copySize(files, thing)};
}

Ending endingOfRestore(const Session& session, const SavedThing& thing, const Outcome& noted) {
    if (!session.files().exists(thing.copies.front()))
        return {.outcome = "no backup"};
    if (!noted.fault.empty())
        return failure(noted.fault);
    if (!noted.notFound.empty())
        return {.outcome = "not restored", .reason = "its archive does not have " + noted.notFound};
    return {.outcome = "restored"};
}

void tell(Session& session, const std::string& word, const Ending& ending) {
    std::string text = word + ": " + ending.outcome;
    JsonFields fields = {{"item", word}, {"outcome", ending.outcome}};
    if (ending.bytes) {
        text += " (" + memoryFormatterDouble(static_cast<double>(*ending.bytes)) + ")";
        fields.emplace_back("bytes", *ending.bytes);
    }
    if (!ending.reason.empty()) {
        text += " (" + ending.reason + ")";
        fields.emplace_back("reason", ending.reason);
    }
    if (ending.isProblem)
        session.output().problem(text, fields);
    else
        session.output().result(text, fields);
}

using EndingOf = Ending (*)(const Session&, const SavedThing&, const Outcome&);

// The alerts have told everything of a run that names its items one by one.
void tellEach(Session& session, const std::vector<std::string>& words, EndingOf endingOf) {
    const Arguments& arguments = session.arguments();
    const bool isWanted = arguments.json || std::ranges::count(words, everyItem) > 0;
    if (arguments.dryRun || !isWanted)
        return;
    // In one case it is still there.
    session.feedback().hideHud();
    for (const SavedThing& thing : savedThings(session.files(), session.catalogue(), words))
        tell(session, thing.word,
             endingOf(session, thing, session.feedback().outcomeOf(thing.word)));
}

}  // namespace

void tellWhatWasSaved(Session& session, const std::vector<std::string>& words) {
    tellEach(session, words, endingOfSave);
}

void tellWhatWasRestored(Session& session, const std::vector<std::string>& words) {
    tellEach(session, words, endingOfRestore);
}

}  // namespace tarnwick
