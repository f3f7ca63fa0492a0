#include "zip/ArchiveUpdate.h"

#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>

#include <algorithm>
#include <cstring>
#include <filesystem>

#include "core/Descriptor.h"
#include "zip/ArchiveAttempt.h"

namespace tarnwick {

namespace {

using OldArchive = ArchiveFile::OldArchive;
using Result = ArchiveAttempt::Result;

std::string folderOf(const std::string& path) {
    const std::string folder = std::filesystem::path(path).parent_path().string();
    return folder.empty() ? "." : folder;
}

// Only one process at a time updates archives in a folder; the lock ends with the process.
class LockedFolder {
public:
    explicit LockedFolder(const std::string& path)
        : folder_(::open(path.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC)) {
        while (::flock(folder_.number(), LOCK_EX) != 0 && errno == EINTR) {
        }
    }
    bool isThere() const { return folder_.isOpen(); }

private:
    const Descriptor folder_;
};

ZipStatus fail(ZipReport& report, ZipStatus status, const std::string& message,
               const std::string& subject) {
    report.fail(message, subject);
    return status;
}

void dropLost(std::vector<TreeEntry>& tree, const std::vector<std::string>& lost,
              ZipReport& report) {
    std::erase_if(tree, [&](const TreeEntry& entry) {
        const bool isGone = std::ranges::find(lost, entry.path) != lost.end() ||
                            (!entry.isFolder() && ::access(entry.path.c_str(), R_OK) != 0);
        if (isGone)
            report.skip("could not open for reading", entry.path);
        return isGone;
    });
}

ZipStatus reportFailure(const ArchiveAttempt& attempt, Result result, const std::string& archive,
                        ZipReport& report) {
    const std::string reason = std::string(std::strerror(attempt.error()));
    if (result == Result::CannotRead)
        return fail(report, ZipStatus::CannotRead, "Could not read archive: " + reason, archive);
    if (result == Result::CannotCreate)
        return fail(report, ZipStatus::CannotCreate, "Could not create output file: " + reason,
                    archive);
    return fail(report, ZipStatus::CannotWrite, "Output file write failure: " + reason, archive);
}

}  // namespace

ZipStatus updateArchive(const ZipRequest& request, ZipReport& report) {
    const std::string &archive = request.archive, folder = folderOf(archive);
    const LockedFolder lock(folder);
    if (!lock.isThere())
        return fail(report, ZipStatus::CannotCreate,
                    "Could not create output file: " + std::string(std::strerror(errno)), archive);
    UnfinishedFile::removeStrays(folder);
    std::vector<TreeEntry> tree = readFolderTree(request.folder, archive, report);
    if (tree.empty())
        return fail(report, ZipStatus::NothingToDo, "Nothing to do!", request.folder);
    OldArchive oldArchive = OldArchive::Kept;
    for (;;) {
        ArchiveAttempt attempt(archive, oldArchive, tree);
        const Result result = attempt.run();
        if (result == Result::Done) {
            attempt.tell(report);
            if (oldArchive == OldArchive::PutAside)
                report.warn("the archive was damaged and is set aside", archive + ".damaged");
            return report.finish();
        }
        if (result == Result::FilesLost)
            dropLost(tree, attempt.lostFiles(), report);
        else if (result == Result::OldArchiveDamaged && oldArchive == OldArchive::Kept)
            oldArchive = OldArchive::PutAside;
        else
            return reportFailure(attempt, result, archive, report);
    }
}

}  // namespace tarnwick
