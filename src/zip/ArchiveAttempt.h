#pragma once

#include <zip.h>

#include <deque>
#include <memory>
#include <string>
#include <string_view>
#include <unordered_map>
#include <unordered_set>
#include <vector>

#include "zip/ArchiveFile.h"
#include "zip/EntryData.h"
#include "zip/ExtraFields.h"
#include "zip/FolderTree.h"
#include "zip/Report.h"

namespace tarnwick {

// One try to write a new archive with all entries of a tree.
class ArchiveAttempt {
public:
    enum class Result { Done, FilesLost, OldArchiveDamaged, CannotRead, CannotWrite };

    // Keeps what is in the archive at the path, or ignores it; writes to the new file. The tree
    // must outlive it.
    ArchiveAttempt(const std::string& path, ArchiveFile::OldArchive oldArchive, int newFile,
                   const std::vector<TreeEntry>& tree);

    Result run();

    // After CannotRead and CannotWrite.
    const std::string& reason() const { return reason_; }
    // The files that could not be read, after FilesLost.
    std::unordered_set<std::string> lostFiles() const;
    // Reports what is in the archive now, after Done.
    void tell(ZipReport& report) const;

private:
    struct Discard {
        void operator()(zip_t* archive) const { zip_discard(archive); }
    };
    struct Addition {
        std::uint64_t index = 0;  // in the archive
        bool isUpdate = false;
        EntryData* data = nullptr;
    };

    Result open();
    std::unordered_map<std::string_view, std::uint64_t> indicesByName() const;
    bool addEntries();
    bool putData(Addition& addition);
    bool describe(const Addition& addition, const std::vector<ExtraField>& fields);
    bool writeAll();
    bool declareAddedNamesPlain(std::uint64_t commentLength) const;
    Result failure(zip_error_t& error);

    const int newFile_;
    ArchiveFile file_;
    std::deque<EntryData> entries_;    // libzip keeps their addresses
    std::vector<Addition> additions_;  // in the order of the archive
    std::unordered_set<std::string> refused_;
    std::string reason_;
    std::unique_ptr<zip_t, Discard> archive_;
};

}  // namespace tarnwick
