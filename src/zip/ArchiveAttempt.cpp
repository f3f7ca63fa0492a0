#include "zip/ArchiveAttempt.h"

#include <algorithm>
#include <cerrno>
#include <cstring>
#include <iterator>
#include <thread>

#include "zip/PlainNames.h"

namespace tarnwick {

namespace {

std::uint32_t attributesOf(mode_t mode) {
    constexpr std::uint32_t readOnly = 0x01, folder = 0x10;
    return std::uint32_t(mode) << 16 | (S_ISDIR(mode) ? folder : 0) |
           ((mode & S_IWUSR) != 0 ? 0 : readOnly);
}

// Our own lack of means, rather than something about the file.
bool isLackOfMeans(int error) {
    return error == EMFILE || error == ENFILE || error == ENOMEM;
}

// What libzip says of an archive that is not well-formed.
bool isDamage(int code) {
    switch (code) {
        case ZIP_ER_NOZIP:
        case ZIP_ER_INCONS:
        case ZIP_ER_MULTIDISK:
        case ZIP_ER_EOF:
        case ZIP_ER_SEEK:
        case ZIP_ER_INVAL:
        case ZIP_ER_READ:
#ifdef ZIP_ER_TRUNCATED_ZIP  // since libzip 1.11
        case ZIP_ER_TRUNCATED_ZIP:
#endif
            return true;
        default:
            return false;
    }
}

bool isAscii(std::string_view text) {
    return std::ranges::all_of(text, [](char character) { return (character & 0x80) == 0; });
}

// What an entry holds beside its data. Newer versions of libzip drop it when the data is replaced.
std::vector<ExtraField> extraFieldsIn(zip_t* archive, std::uint64_t index) {
    std::vector<ExtraField> fields;
    for (const zip_flags_t place : {ZIP_FL_LOCAL, ZIP_FL_CENTRAL}) {
        const int count = zip_file_extra_fields_count(archive, index, place);
        for (int number = 0; number < count; ++number) {
            std::uint16_t id = 0, length = 0;
            const std::uint8_t* const data = zip_file_extra_field_get(
                archive, index, static_cast<std::uint16_t>(number), &id, &length, place);
            auto field = std::ranges::find(fields, id, &ExtraField::id);
            if (field == fields.end())
                field = fields.insert(field, {.id = id});
            if (data != nullptr)
                (place == ZIP_FL_LOCAL ? field->local : field->central).assign(data, data + length);
        }
    }
    return fields;
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
                               int newFile, const std::vector<TreeEntry>& tree)
    : newFile_(newFile), file_(path, oldArchive, newFile) {
    for (const TreeEntry& entry : tree)
        entries_.emplace_back(entry);
}

ArchiveAttempt::Result ArchiveAttempt::run() {
    if (const auto result = open(); result != Result::Done)
        return result;
    if (!addEntries())
        return failure(*zip_get_error(archive_.get()));
    int commentLength = 0;
    zip_get_archive_comment(archive_.get(), &commentLength, ZIP_FL_ENC_RAW);
    if (!writeAll())
        return failure(*zip_get_error(archive_.get()));
    if (declareAddedNamesPlain(static_cast<std::uint64_t>(std::max(commentLength, 0))))
        return Result::Done;
    reason_ = std::strerror(errno);
    return Result::CannotWrite;
}

ArchiveAttempt::Result ArchiveAttempt::open() {
    zip_error_t error = {};
    zip_error_init(&error);
    zip_source_t* const source = file_.newSource();
    archive_.reset(zip_open_from_source(source, ZIP_CREATE, &error));
    if (!archive_)
        zip_source_free(source);
    const Result result = archive_ ? Result::Done : failure(error);
    zip_error_fini(&error);
    return result;
}

std::unordered_map<std::string_view, std::uint64_t> ArchiveAttempt::indicesByName() const {
    // Of several entries of the same name, the last one is what is unpacked.
    std::unordered_map<std::string_view, std::uint64_t> indices;
    const auto count = static_cast<std::uint64_t>(zip_get_num_entries(archive_.get(), 0));
    for (std::uint64_t index = 0; index < count; ++index) {
        if (const char* name = zip_get_name(archive_.get(), index, ZIP_FL_ENC_RAW))
            indices[name] = index;
    }
    return indices;
}

bool ArchiveAttempt::addEntries() {
    const auto indices = indicesByName();
    for (EntryData& data : entries_) {
        Addition addition = {.data = &data};
        if (const auto old = indices.find(data.entry().name()); old != indices.end())
            addition = {old->second, true, &data};
        std::vector<ExtraField> fields;
        if (addition.isUpdate)
            fields = extraFieldsIn(archive_.get(), addition.index);
        std::ranges::move(extraFieldsOf(data.entry()), std::back_inserter(fields));
        if (!putData(addition)) {
            if (zip_error_code_zip(zip_get_error(archive_.get())) != ZIP_ER_EXISTS)
                return false;
            refused_.insert(data.entry().path);
            continue;
        }
        if (!describe(addition, fields))
            return false;
        additions_.push_back(addition);
    }
    std::ranges::sort(additions_, {}, &Addition::index);
    return refused_.empty();
}

// libzip refuses a name that is the same as another one if both are read in the character set of
// early computers.
bool ArchiveAttempt::putData(Addition& addition) {
    zip_source_t* const source = addition.data->newSource();
    const std::string name(addition.data->entry().name());
    bool isDone = false;
    if (addition.isUpdate) {
        isDone = zip_file_replace(archive_.get(), addition.index, source, 0) == 0;
    } else {
        const std::int64_t index = zip_file_add(archive_.get(), name.c_str(), source, 0);
        addition.index = static_cast<std::uint64_t>(index);
        isDone = index >= 0;
    }
    if (!isDone)
        zip_source_free(source);
    return isDone;
}

bool ArchiveAttempt::describe(const Addition& addition, const std::vector<ExtraField>& fields) {
    const TreeEntry& entry = addition.data->entry();
    zip_t* const archive = archive_.get();
    const std::uint64_t index = addition.index;
    return zip_file_set_external_attributes(archive, index, 0, ZIP_OPSYS_UNIX,
                                            attributesOf(entry.mode)) == 0 &&
           zip_file_set_mtime(archive, index, nearestArchiveTime(entry.modified), 0) == 0 &&
           // The old version may have been encrypted.
           zip_file_set_encryption(archive, index, ZIP_EM_NONE, nullptr) == 0 &&
           std::ranges::all_of(fields, [&](const ExtraField& field) {
               return replaceExtraField(archive, index, field);
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
    if (zip_close(archive_.get()) != 0)
        return false;
    // It is closed.
    archive_.release();
    return true;
}

bool ArchiveAttempt::declareAddedNamesPlain(std::uint64_t commentLength) const {
    std::unordered_set<std::string_view> names;
    for (const EntryData& data : entries_) {
        if (!isAscii(data.entry().name()))
            names.insert(data.entry().name());
    }
    const auto accepts = [&](std::string_view name) { return names.contains(name); };
    return names.empty() || declareNamesPlain(newFile_, file_.newLength(), commentLength, accepts);
}

ArchiveAttempt::Result ArchiveAttempt::failure(zip_error_t& error) {
    int readError = file_.readError();
    for (const EntryData& data : entries_) {
        if (isLackOfMeans(data.readError()))
            readError = data.readError();
    }
    reason_ = zip_error_strerror(&error);
    if (file_.writeError() != 0)
        return Result::CannotWrite;
    if (readError != 0) {
        reason_ = std::strerror(readError);
        return Result::CannotRead;
    }
    if (!lostFiles().empty())
        return Result::FilesLost;
    return file_.hasOld() && isDamage(zip_error_code_zip(&error)) ? Result::OldArchiveDamaged
                                                                  : Result::CannotWrite;
}

std::unordered_set<std::string> ArchiveAttempt::lostFiles() const {
    std::unordered_set<std::string> paths = refused_;
    for (const EntryData& data : entries_) {
        if (data.readError() != 0)
            paths.insert(data.entry().path);
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
