#include "compare/ArchiveIndex.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>
#include <zip.h>

#include <cerrno>
#include <memory>

namespace tarnwick {

namespace {

using Archive = std::unique_ptr<zip_t, void (*)(zip_t*)>;

// Below 0, with errno set, unless it is a file: a pipe would be waited for.
int openPlainFile(const std::string& path) {
    const int file = ::open(path.c_str(), O_RDONLY | O_NONBLOCK | O_CLOEXEC);
    struct stat status = {};
    if (file < 0 || (::fstat(file, &status) == 0 && S_ISREG(status.st_mode)))
        return file;
    ::close(file);
    errno = ENOTSUP;
    return -1;
}

// Null, with errno set, if it cannot be read.
Archive open(const std::string& path) {
    const int file = openPlainFile(path);
    int fault = 0;
    Archive archive(file < 0 ? nullptr : zip_fdopen(file, 0, &fault), zip_discard);
    if (file >= 0 && !archive) {
        ::close(file);
        errno = EILSEQ;
    }
    return archive;
}

void addFoldersOf(const std::string& name, ArchiveIndex& index) {
    for (std::size_t slash = name.rfind('/', name.size() - 1); slash != std::string::npos;
         slash = slash == 0 ? std::string::npos : name.rfind('/', slash - 1))
        if (!index.try_emplace(name.substr(0, slash + 1)).second)
            return;
}

}  // namespace

std::variant<ArchiveIndex, IndexError> indexOf(const std::string& path) {
    const Archive archive = open(path);
    if (!archive)
        return errno;
    ArchiveIndex index;
    const auto count = static_cast<std::uint64_t>(zip_get_num_entries(archive.get(), 0));
    for (std::uint64_t entry = 0; entry < count; ++entry) {
        zip_stat_t status = {};
        // Names as they are, whatever their letters.
        const char* const name = zip_get_name(archive.get(), entry, ZIP_FL_ENC_RAW);
        if (name == nullptr || zip_stat_index(archive.get(), entry, 0, &status) != 0)
            return EILSEQ;
        index[name] = {.size = status.size, .crc = status.crc};
        addFoldersOf(name, index);
    }
    return index;
}

}  // namespace tarnwick
