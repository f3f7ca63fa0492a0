#include "zip/ArchiveAttempt.h"

#include <algorithm>
#include <cstring>
#include <thread>
#include <unordered_set>

#include "zip/ExtraFields.h"
#include "zip/PlainNames.h"

namespace tarnwick {

namespace {

std::uint32_t attributesOf(const struct stat& status) {
    constexpr std::uint32_t readOnly = 0x01, folder = 0x10;
    return std::uint32_t(status.st_mode) << 16 | (S_ISDIR(status.st_mode) ? folder : 0) |
           ((status.st_mode & S_IWUSR) != 0 ? 0 : readOnly);
}

bool isAscii(std::string_view text) {
    return std::ranges::all_of(text, [](char character) { return (character & 0x80) == 0; });
}

bool replaceExtraField(zip_t* archive, std::uint64_t index, const ExtraField& field) {
    for (const zip_flags_t place : {ZIP_FL_LOCAL, ZIP_FL_CENTRAL}) {
        const auto& data = place == ZIP_FL_LOCAL ? field.local : field.central;
        if (zip_file_extra_field_delete_by_id(archive, index, field.id, ZIP_EXTRA_FIELD_ALL,
                                              place) != 0)
            return false;
        if (!data.empty() &&
            zip_file_extra_field_set(archive, index, field.id, ZIP_EXTRA_FIELD_NEW, data.data(),
                                     static_cast<std::uint16_t>(data.size()), place) != 0)
            return false;
    }
    return true;
}

}  // namespace

ArchiveAttempt::ArchiveAttempt(const std::string& path, ArchiveFile::OldArchive oldArchive,
                               const std::vector<TreeEntry>& tree)
    : file_(path, oldArchive) {
    for (const TreeEntry& entry : tree)
        entries_.emplace_back(entry);
}

ArchiveAttempt::Result ArchiveAttempt::run() {
    zip_error_t error = {};
    if (!open(error))
        return reasonOf(error);
    if (!addEntries() || !writeAll())
        return reasonOf(*zip_get_error(archive_.get()));
    return Result::Done;
}

bool ArchiveAttempt::open(zip_error_t& error) {
    zip_source_t* const source = file_.newSource();
    archive_.reset(zip_open_from_source(source, ZIP_CREATE, &error));
    if (!archive_)
        zip_source_free(source);
    return archive_ != nullptr;
}

std::unordered_map<std::string_view, std::uint64_t> ArchiveAttempt::indicesByName() const {
    std::unordered_map<std::string_view, std::uint64_t> indices;
    const auto count = static_cast<std::uint64_t>(zip_get_num_entries(archive_.get(), 0));
    for (std::uint64_t index = 0; index < count; ++index) {
        if (const char* name = zip_get_name(archive_.get(), index, ZIP_FL_ENC_RAW))
            indices.emplace(name, index);
    }
    return indices;
}

bool ArchiveAttempt::addEntries() {
    const auto indices = indicesByName();
    for (EntryData& data : entries_) {
        Addition addition = {.data = &data};
        if (const auto old = indices.find(data.entry().name()); old != indices.end())
            addition = {old->second, true, &data};
        if (!putData(addition) || !describe(addition))
            return false;
        additions_.push_back(addition);
    }
    std::ranges::sort(additions_, {}, &Addition::index);
    return true;
}

bool ArchiveAttempt::putData(Addition& addition) {
    zip_source_t* const source = addition.data->newSource();
    if (addition.isUpdate) {
        if (zip_file_replace(archive_.get(), addition.index, source, 0) == 0)
            return true;
    } else {
        const std::string name(addition.data->entry().name());
        const std::int64_t index = zip_file_add(archive_.get(), name.c_str(), source, 0);
        addition.index = static_cast<std::uint64_t>(index);
        if (index >= 0)
            return true;
    }
    zip_source_free(source);
    return false;
}

bool ArchiveAttempt::describe(const Addition& addition) {
    const struct stat& status = addition.data->entry().status;
    zip_t* const archive = archive_.get();
    return zip_file_set_external_attributes(archive, addition.index, 0, ZIP_OPSYS_UNIX,
                                            attributesOf(status)) == 0 &&
           zip_file_set_mtime(archive, addition.index, nearestArchiveTime(status.st_mtime), 0) ==
               0 &&
           std::ranges::all_of(extraFieldsOf(status), [&](const ExtraField& field) {
               return replaceExtraField(archive, addition.index, field);
           });
}

bool ArchiveAttempt::writeAll() {
    std::vector<const TreeEntry*> files;
    for (const Addition& addition : additions_) {
        if (!addition.data->entry().isFolder())
            files.push_back(&addition.data->entry());
    }
    CompressedFiles compressed(files, std::thread::hardware_concurrency());
    for (EntryData& data : entries_)
        data.take(compressed);
    file_.finishWith(
        [this](int file, std::uint64_t length) { return declareAddedNamesPlain(file, length); });
    if (zip_close(archive_.get()) != 0)
        return false;
    // It is closed.
    archive_.release();
    return true;
}

bool ArchiveAttempt::declareAddedNamesPlain(int file, std::uint64_t length) const {
    std::unordered_set<std::string_view> names;
    for (const EntryData& data : entries_) {
        if (!isAscii(data.entry().name()))
            names.insert(data.entry().name());
    }
    int commentLength = 0;
    zip_get_archive_comment(archive_.get(), &commentLength, ZIP_FL_ENC_RAW);
    return names.empty() ||
           declareNamesPlain(file, length, static_cast<std::uint64_t>(std::max(commentLength, 0)),
                             [&](std::string_view name) { return names.contains(name); });
}

ArchiveAttempt::Result ArchiveAttempt::reasonOf(const zip_error_t& error) const {
    if (std::ranges::any_of(entries_, &EntryData::isLost))
        return Result::FilesLost;
    if (error.zip_err == ZIP_ER_TMPOPEN)
        return Result::CannotCreate;
    if (file_.writeError() != 0 || error.zip_err == ZIP_ER_MEMORY)
        return Result::CannotWrite;
    return file_.readError() != 0 ? Result::CannotRead : Result::OldArchiveDamaged;
}

int ArchiveAttempt::error() const {
    return file_.writeError() != 0 ? file_.writeError() : file_.readError();
}

std::vector<std::string> ArchiveAttempt::lostFiles() const {
    std::vector<std::string> paths;
    for (const EntryData& data : entries_) {
        if (data.isLost())
            paths.push_back(data.entry().path);
    }
    return paths;
}

void ArchiveAttempt::tell(ZipReport& report) const {
    for (const Addition& addition : additions_) {
        const EntryData& data = *addition.data;
        report.addEntry(data.entry().name(), addition.isUpdate, data.size(), data.compressedSize(),
                        data.isDeflated());
        if (data.hasChanged())
            report.warn("file size changed while zipping", data.entry().path);
    }
}

}  // namespace tarnwick
