#include "zip/FolderTree.h"

#include <dirent.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <memory>
#include <optional>

namespace tarnwick {

namespace {

bool isSame(const struct stat& one, const struct stat& other) {
    return one.st_dev == other.st_dev && one.st_ino == other.st_ino;
}

// Null if the folder cannot be read.
std::optional<std::vector<std::string>> namesIn(const std::string& folder) {
    const std::unique_ptr<DIR, int (*)(DIR*)> open(::opendir(folder.c_str()), ::closedir);
    if (!open)
        return std::nullopt;
    std::vector<std::string> names;
    while (const struct dirent* entry = ::readdir(open.get())) {
        const std::string name = entry->d_name;
        if (name != "." && name != "..")
            names.push_back(name);
    }
    std::ranges::sort(names);
    return names;
}

class Reader {
public:
    Reader(const std::string& archive, ZipReport& report)
        : hasArchive_(::stat(archive.c_str(), &archive_) == 0), report_(report) {}

    void read(const std::string& path) {
        TreeEntry entry{path};
        if (::stat(path.c_str(), &entry.status) != 0)
            reportMissing(path);
        else if (S_ISDIR(entry.status.st_mode))
            readFolder(std::move(entry));
        else if (S_ISFIFO(entry.status.st_mode))
            report_.warn("ignoring FIFO (Named Pipe)", path);
        else if (!S_ISREG(entry.status.st_mode))
            report_.warn("ignoring special file", path);
        else if (!hasArchive_ || !isSame(entry.status, archive_))
            readFile(std::move(entry));
    }

    std::vector<TreeEntry> takeEntries() { return std::move(entries_); }

private:
    void reportMissing(const std::string& path) {
        if (errno == ENOENT || errno == ELOOP)
            report_.warn("name not matched", path);
        else
            report_.skip("could not open for reading", path);
    }

    void readFile(TreeEntry entry) {
        if (::access(entry.path.c_str(), R_OK) == 0)
            entries_.push_back(std::move(entry));
        else
            report_.skip("could not open for reading", entry.path);
    }

    void readFolder(TreeEntry entry) {
        if (!entry.path.ends_with('/'))
            entry.path += '/';
        const std::string path = entry.path;
        const struct stat status = entry.status;
        if (std::ranges::any_of(above_,
                                [&](const auto& folder) { return isSame(folder, status); })) {
            report_.warn("ignoring folder that leads back into itself", path);
            return;
        }
        entries_.push_back(std::move(entry));
        const auto names = namesIn(path);
        if (!names) {
            report_.skip("could not open folder", path);
            return;
        }
        above_.push_back(status);
        for (const std::string& name : *names)
            read(path + name);
        above_.pop_back();
    }

    struct stat archive_ = {};
    const bool hasArchive_;
    ZipReport& report_;
    std::vector<struct stat> above_;
    std::vector<TreeEntry> entries_;
};

}  // namespace

std::string_view TreeEntry::name() const {
    const std::string_view whole = path;
    return whole.substr(std::min(whole.find_first_not_of('/'), whole.size()));
}

std::vector<TreeEntry> readFolderTree(const std::string& folder, const std::string& archive,
                                      ZipReport& report) {
    Reader reader(archive, report);
    reader.read(folder);
    return reader.takeEntries();
}

}  // namespace tarnwick
