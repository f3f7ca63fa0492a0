#include "zip/FolderTree.h"

#include <dirent.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <memory>
#include <optional>
#include <utility>

namespace tarnwick {

namespace {

bool contains(const std::vector<struct stat>& files, const struct stat& one) {
    return std::ranges::any_of(files, [&](const struct stat& other) {
        return one.st_dev == other.st_dev && one.st_ino == other.st_ino;
    });
}

// Null if the folder cannot be read.
std::optional<std::vector<std::string>> namesIn(const std::string& folder) {
    const std::unique_ptr<DIR, int (*)(DIR*)> open(::opendir(folder.c_str()), ::closedir);
    if (!open)
        return std::nullopt;
    std::vector<std::string> names;
    for (;;) {
        errno = 0;
        const struct dirent* const entry = ::readdir(open.get());
        if (entry == nullptr)
            break;
        const std::string name = entry->d_name;
        if (name != "." && name != "..")
            names.push_back(name);
    }
    if (errno != 0)
        return std::nullopt;
    std::ranges::sort(names);
    return names;
}

class Reader {
public:
    Reader(const std::vector<std::string>& excluded, TreeReport& report) : report_(report) {
        for (const std::string& path : excluded) {
            struct stat status = {};
            if (::stat(path.c_str(), &status) == 0)
                excluded_.push_back(status);
        }
    }

    void read(const std::string& path) {
        struct stat status = {};
        if (::stat(path.c_str(), &status) != 0)
            reportMissing(path);
        else if (contains(excluded_, status))
            return;
        else if (S_ISDIR(status.st_mode))
            readFolder(path.ends_with('/') ? path : path + "/", status);
        else if (S_ISFIFO(status.st_mode))
            report_.warn("ignoring FIFO (Named Pipe)", path);
        else if (!S_ISREG(status.st_mode))
            report_.warn("ignoring special file", path);
        else if (::access(path.c_str(), R_OK) != 0)
            report_.skip("could not open for reading", path);
        else
            entries_.emplace_back(path, status);
    }

    std::vector<TreeEntry> takeEntries() { return std::move(entries_); }

private:
    void reportMissing(const std::string& path) {
        if (errno == ENOENT || errno == ELOOP)
            report_.warn("name not matched", path);
        else
            report_.skip("could not open for reading", path);
    }

    void readFolder(const std::string& path, const struct stat& status) {
        if (contains(above_, status)) {
            report_.warn("ignoring folder that leads back into itself", path);
            return;
        }
        entries_.emplace_back(path, status);
        const auto names = namesIn(path);
        if (!names) {
            report_.skip("could not read folder", path);
            return;
        }
        above_.push_back(status);
        for (const std::string& name : *names)
            read(path + name);
        above_.pop_back();
    }

    std::vector<struct stat> excluded_;
    TreeReport& report_;
    std::vector<struct stat> above_;
    std::vector<TreeEntry> entries_;
};

}  // namespace

TreeEntry::TreeEntry(std::string found, const struct stat& status)
    : path(std::move(found)),
      mode(status.st_mode),
      user(status.st_uid),
      group(status.st_gid),
      modified(status.st_mtime),
      accessed(status.st_atime),
      size(S_ISDIR(status.st_mode) ? 0 : static_cast<std::uint64_t>(status.st_size)) {}

std::string_view TreeEntry::name() const {
    const std::string_view whole = path;
    return whole.substr(std::min(whole.find_first_not_of('/'), whole.size()));
}

std::vector<TreeEntry> readFolderTree(const std::string& folder,
                                      const std::vector<std::string>& excluded,
                                      TreeReport& report) {
    Reader reader(excluded, report);
    reader.read(folder);
    return reader.takeEntries();
}

}  // namespace tarnwick
