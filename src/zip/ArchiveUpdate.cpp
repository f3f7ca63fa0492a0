#include "zip/ArchiveUpdate.h"

#include <fcntl.h>
#include <unistd.h>

#include <algorithm>
#include <cstring>
#include <filesystem>
#include <optional>
#include <unordered_set>

#include "core/Descriptor.h"
#include "zip/ArchiveAttempt.h"
#include "zip/UnfinishedFile.h"

namespace tarnwick {

namespace {

using OldArchive = ArchiveFile::OldArchive;
using Result = ArchiveAttempt::Result;

constexpr char damagedEnding[] = ".damaged";

std::string folderOf(const std::string& path) {
    const std::string folder = std::filesystem::path(path).parent_path().string();
    return folder.empty() ? "." : folder;
}

ZipStatus fail(ZipReport& report, ZipStatus status, const std::string& message,
               const std::string& subject) {
    report.fail(message, subject);
    return status;
}

bool canBeRead(const TreeEntry& entry) {
    constexpr int flags = O_RDONLY | O_CLOEXEC | O_NONBLOCK | O_NOCTTY;
    return entry.isFolder() || Descriptor(::open(entry.path.c_str(), flags)).isOpen();
}

// All at once, as each new attempt takes its time.
void dropLost(std::vector<TreeEntry>& tree, const std::unordered_set<std::string>& lost,
              ZipReport& report) {
    std::erase_if(tree, [&](const TreeEntry& entry) {
        const bool isLost = lost.contains(entry.path) || !canBeRead(entry);
        if (isLost)
            report.skip("could not be added", entry.path);
        return isLost;
    });
}

ZipStatus finish(UnfinishedFile& file, const ArchiveAttempt& attempt, OldArchive oldArchive,
                 const std::string& archive, ZipReport& report) {
    const std::string damaged = archive + damagedEnding;
    const bool isSetAside = oldArchive == OldArchive::Ignored;
    if (!file.putInPlace(isSetAside ? std::optional(damaged) : std::nullopt))
        return fail(report, ZipStatus::CannotWrite,
                    std::string("Output file write failure: ") + std::strerror(errno), archive);
    attempt.tell(report);
    if (isSetAside)
        report.warn("the archive was damaged and is set aside", damaged);
    return report.finish();
}

ZipStatus write(UnfinishedFile& file, const std::string& archive, std::vector<TreeEntry>& tree,
                ZipReport& report) {
    OldArchive oldArchive = OldArchive::Kept;
    for (;;) {
        ArchiveAttempt attempt(archive, oldArchive, file.number(), tree);
        switch (attempt.run()) {
            case Result::Done:
                return finish(file, attempt, oldArchive, archive, report);
            case Result::FilesLost:
                dropLost(tree, attempt.lostFiles(), report);
                break;
            case Result::OldArchiveDamaged:
                oldArchive = OldArchive::Ignored;
                break;
            case Result::CannotRead:
                return fail(report, ZipStatus::CannotRead, "Could not read: " + attempt.reason(),
                            archive);
            case Result::CannotWrite:
                return fail(report, ZipStatus::CannotWrite,
                            "Output file write failure: " + attempt.reason(), archive);
        }
    }
}

}  // namespace

ZipStatus updateArchive(const ZipRequest& request, ZipReport& report) {
    const std::string& archive = request.archive;
    UnfinishedFile::removeStrays(folderOf(archive));
    UnfinishedFile file(archive);
    if (file.error() != 0)
        return fail(report, ZipStatus::CannotCreate,
                    std::string("Could not create output file: ") + std::strerror(file.error()),
                    archive);
    std::vector<TreeEntry> tree =
        readFolderTree(request.folder, {archive, file.path(), archive + damagedEnding}, report);
    if (tree.empty())
        return fail(report, ZipStatus::NothingToDo, "Nothing to do!", request.folder);
    return write(file, archive, tree, report);
}

}  // namespace tarnwick
