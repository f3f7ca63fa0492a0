#include <algorithm>

#include "cli/Commands.h"
#include "cli/CopyWords.h"
#include "copy/CopyReader.h"
#include "copy/IncomingFolder.h"
#include "copy/OutgoingFile.h"
#include "copy/SafeguardNames.h"
#include "core/SafeguardPaths.h"

namespace tarnwick {

namespace {

// What an import makes of a file that is there, or comes.
struct Change {
    std::string name;
    std::string word;  // "new", "replaced", "the same" or "not in the copy"
};

// Null unless the safeguard folder has the file.
std::optional<std::string> digestOf(Session& session, const std::string& name) {
    OutgoingFile file(session.world().root + std::string(paths::safeguardRoot), name);
    if (file.error() != 0)
        return std::nullopt;
    file.takeDigest();
    return file.facts().digest;
}

std::optional<Change> changeOf(Session& session, const std::string& name,
                               const Manifest& manifest) {
    const auto incoming = std::ranges::find(manifest.files, name, &CopiedFile::name);
    const auto present = digestOf(session, name);
    if (incoming == manifest.files.end())
        return present ? std::optional(Change{name, "not in the copy"}) : std::nullopt;
    if (!present)
        return Change{name, "new"};
    return Change{name, *present == incoming->digest ? "the same" : "replaced"};
}

std::vector<Change> changesBy(Session& session, const Manifest& manifest) {
    std::vector<Change> changes;
    for (const std::string& name : safeguardNames(session.catalogue()))
        if (auto change = changeOf(session, name, manifest))
            changes.push_back(std::move(*change));
    return changes;
}

void tell(Session& session, const std::vector<Change>& changes) {
    for (const Change& change : changes)
        session.output().result(change.name + ": " + change.word,
                                {{"file", change.name}, {"change", change.word}});
}

void tellEnd(Session& session, const Manifest& manifest, bool hadSafeguard) {
    session.output().result("imported: " + summaryOf(manifest), fieldsOf(manifest));
    if (hadSafeguard)
        session.output().result(
            std::string("what was there before is in ") + previousFolder + " until the next import",
            {{"previous", previousFolder}});
}

// Reads the copy into the sink and, if it is whole, has it put in place.
void importInto(Session& session, const CopyInput& input, CopySink& sink,
                const std::function<CopySink::Fault()>& putInPlace) {
    const bool hadSafeguard = session.files().exists(paths::safeguardRoot);
    session.feedback().showHud("Importing...");
    ReadCopy copy =
        readCopy(input.number(), safeguardNames(session.catalogue()), sink, shownBy(session));
    std::vector<Change> changes;
    if (!copy.fault) {
        changes = changesBy(session, *copy.manifest);
        copy.fault = putInPlace();
    }
    session.feedback().hideHud();
    if (copy.fault) {
        session.output().complaint("nothing has changed: " + input.name() + ": " + *copy.fault);
        session.feedback().noteProblem();
        return;
    }
    tell(session, changes);
    if (!session.arguments().dryRun)
        tellEnd(session, *copy.manifest, hadSafeguard);
}

}  // namespace

ExitStatus importSafeguard(Session& session, const std::vector<std::string>& words) {
    const CopyInput input(session, words);
    if (const auto refused = input.refusal(session))
        return *refused;
    if (session.arguments().dryRun) {
        CopySink nothing;
        return session.perform({.work = [&] {
            importInto(session, input, nothing, [] { return CopySink::Fault(); });
        }});
    }
    IncomingFolder incoming(session.world().root);
    return session.perform(
        {.work =
             [&] { importInto(session, input, incoming, [&] { return incoming.putInPlace(); }); },
         .what = "import"});
}

}  // namespace tarnwick
