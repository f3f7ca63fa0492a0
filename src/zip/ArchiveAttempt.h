#pragma once

#include <zip.h>

#include <deque>
#include <memory>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "zip/ArchiveFile.h"
#include "zip/EntryData.h"
#include "zip/FolderTree.h"
#include "zip/Report.h"

namespace tarnwick {

// One try to write an archive with all entries of a tree. Unless it is done, the archive that was
// there stands as it was.
class ArchiveAttempt {
public:
    enum class Result { Done, FilesLost, OldArchiveDamaged, CannotRead, CannotCreate, CannotWrite };

    // The tree must outlive it.
    ArchiveAttempt(const std::string& path, ArchiveFile::OldArchive oldArchive,
                   const std::vector<TreeEntry>& tree);

    Result run();

    // The reason, if it can be known.
    int error() const;
    // The files that could not be read, after FilesLost.
    std::vector<std::string> lostFiles() const;
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

    bool open(zip_error_t& error);
    std::unordered_map<std::string_view, std::uint64_t> indicesByName() const;
    bool addEntries();
    bool putData(Addition& addition);
    bool describe(const Addition& addition);
    bool writeAll();
    bool declareAddedNamesPlain(int file, std::uint64_t length) const;
    Result reasonOf(const zip_error_t& error) const;

    ArchiveFile file_;
    std::deque<EntryData> entries_;    // libzip keeps their addresses
    std::vector<Addition> additions_;  // in the order of the archive
    std::unique_ptr<zip_t, Discard> archive_;
};

}  // namespace tarnwick
