#include <fcntl.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>

#include "cli/Commands.h"
#include "cli/CopyTarget.h"
#include "cli/CopyWords.h"
#include "cli/QuotedName.h"
#include "cli/SafeguardState.h"
#include "compare/SavedLists.h"
#include "copy/CopyReader.h"
#include "copy/CopyWriter.h"
#include "copy/SafeguardNames.h"
#include "core/Reasons.h"
#include "core/SafeguardPaths.h"

namespace tarnwick {

namespace {

std::string pathOf(const std::string& name) {
    return std::string(paths::safeguardRoot) + "/" + name;
}

// What a copy would have to hold, but the safeguard folder does not.
void reportMissing(Session& session) {
    for (const SavedList& list : compareSavedLists(session.files()))
        if (list.state == SavedList::State::Missing)
            session.report(list.word + ": not saved");
    for (const BackupItem& item : session.catalogue())
        for (std::size_t index = 0; index < item.archives.size(); ++index) {
            const std::string& archive = item.archives[index].path;
            if (!session.files().exists(archive) && session.files().exists(item.sourcePaths[index]))
                session.report(paths::nameOf(archive) + ": missing");
        }
}

// What lies in the safeguard folder besides.
void mentionStrangers(Session& session, const std::vector<std::string>& names) {
    for (const std::string_view folder :
         {paths::sourcesFolder, paths::packagesFolder, paths::archiveFolder})
        for (const std::string& file :
             session.files().list(folder).value_or(std::vector<std::string>()))
            if (const std::string name = paths::nameOf(folder) + "/" + file;
                std::ranges::find(names, name) == names.end())
                session.output().complaint(quotedName(name) + " is not part of a copy");
}

// Reports what is there but cannot be read.
bool isReadable(Session& session, const OutgoingFile& file) {
    if (file.error() != 0 && file.error() != ENOENT)
        session.report(failureText(pathOf(file.facts().name), "read", file.error()));
    return file.error() == 0;
}

// Reports why it is not.
bool isWhole(Session& session, const OutgoingFile& file) {
    const std::string& name = file.facts().name;
    if (!isArchiveName(name) || session.arguments().noCheck)
        return true;
    const std::string verdict = verdictOn(session, pathOf(name));
    if (verdict != "good")
        session.report(name + ": " + verdict);
    return verdict == "good";
}

// Whether the file is one to be sent; it has its digest then.
bool isReady(Session& session, OutgoingFile& file) {
    if (!isReadable(session, file) || !isWhole(session, file))
        return false;
    file.takeDigest();
    return isReadable(session, file);
}

std::list<OutgoingFile> collect(Session& session, const std::vector<std::string>& names) {
    std::list<OutgoingFile> files;
    for (const std::string& name : names) {
        files.emplace_back(session.world().root + std::string(paths::safeguardRoot), name);
        if (!isReady(session, files.back()))
            files.pop_back();
    }
    return files;
}

// Returns whether a copy was written, of whatever is whole.
bool writeTo(Session& session, int output) {
    const auto names = safeguardNames(session.catalogue());
    session.feedback().showHud("Testing the archives...");
    mentionStrangers(session, names);
    reportMissing(session);
    auto files = collect(session, names);
    if (files.empty()) {
        session.report("there is nothing to export");
        return false;
    }
    session.feedback().showHud("Exporting...");
    const auto fault = writeCopy(output, newManifest(TARNWICK_VERSION), files, shownBy(session));
    session.feedback().hideHud();
    if (fault)
        session.report(*fault);
    return !fault;
}

ExitStatus exportToStream(Session& session) {
    const int output = session.world().streams.results;
    if (::isatty(output) == 1) {
        session.output().complaint(
            "a terminal cannot take a copy: give a file, or redirect the output to one");
        return WrongUsage;
    }
    return session.perform({.work = [&] { writeTo(session, output); }});
}

ExitStatus exportToFile(Session& session, const std::string& path) {
    const CopyTarget target(path);
    if (target.number() < 0) {
        session.output().complaint(failureText(path, "written", errno));
        return NotAllDone;
    }
    return session.perform({.work = [&] {
        if (writeTo(session, target.number()) && !target.putInPlace())
            session.report(failureText(path, "written", errno));
    }});
}

// Prints what a copy would hold.
ExitStatus rehearse(Session& session) {
    for (const std::string& name : safeguardNames(session.catalogue()))
        if (session.files().isReadable(pathOf(name)))
            session.output().result("export: " + pathOf(name), {{"file", name}});
    return AllDone;
}

ExitStatus verifyCopy(Session& session, const std::vector<std::string>& words) {
    const CopyInput input(session, words);
    if (const auto refused = input.refusal(session))
        return *refused;
    return session.perform({.work = [&] {
        session.feedback().showHud("Verifying...");
        CopySink nothing;
        const ReadCopy copy = readCopy(input.number(), safeguardNames(session.catalogue()), nothing,
                                       shownBy(session));
        session.feedback().hideHud();
        if (copy.fault)
            session.report(input.name() + ": " + *copy.fault);
        else
            session.output().result(input.name() + ": whole; " + summaryOf(*copy.manifest),
                                    fieldsOf(*copy.manifest));
    }});
}

}  // namespace

ExitStatus exportSafeguard(Session& session, const std::vector<std::string>& words) {
    if (session.arguments().verify)
        return verifyCopy(session, words);
    if (session.arguments().dryRun)
        return rehearse(session);
    if (words.empty() || words.front() == "-")
        return exportToStream(session);
    return exportToFile(session, placedBy(session, words.front()));
}

}  // namespace tarnwick
