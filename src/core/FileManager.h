#pragma once

#include <cstdint>
#include <ctime>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace tarnwick {

// Of a file that is read whole.
inline constexpr std::int64_t largestText = 64 << 20;  // bytes

// The file calls that operations make. Nothing throws, and after a failure errno holds the reason:
// most callers do not even look at the result. Any thread. Seams, so that tests can use another
// root or inject faults, and a rehearsal can read without writing.
class FileReader {
public:
    virtual ~FileReader() = default;

    // Follows links: a dangling one does not exist. Any kind of file counts.
    virtual bool exists(std::string_view path) const = 0;
    // Whether it is a regular file, or a link to one, that may be read.
    virtual bool isReadable(std::string_view path) const = 0;
    // The names in a folder, in the file system's own order; null if it cannot be listed.
    virtual std::optional<std::vector<std::string>> list(std::string_view path) const = 0;
    // The whole text of a file; null unless it can be read and is valid UTF-8 (EILSEQ).
    virtual std::optional<std::string> readText(std::string_view path) const = 0;
    // The whole content of a regular file of at most 64 MB; null if it is a link (ELOOP), something
    // else (ENOTSUP), larger (EFBIG) or cannot be read.
    virtual std::optional<std::string> readData(std::string_view path) const = 0;
    // Bytes; 0 if the file is not accessible.
    virtual std::uint64_t fileSize(std::string_view path) const = 0;
    // Null if the file is not accessible.
    virtual std::optional<std::time_t> modificationTime(std::string_view path) const = 0;
    // Bytes of the file system that holds the path; 0 if it does not answer. Free means available
    // to users.
    virtual std::int64_t fileSystemSize(std::string_view path) const = 0;
    virtual std::int64_t fileSystemFreeSize(std::string_view path) const = 0;
};

class FileWriter {
public:
    virtual ~FileWriter() = default;

    // Removes a folder with all its contents. A failure may leave a part of it. Links are not
    // followed.
    virtual bool remove(std::string_view path) = 0;
    // Copies a file that readData() would read, with its permissions. Fails, with nothing changed,
    // when the target exists.
    virtual bool copy(std::string_view from, std::string_view to) = 0;
    // Creates missing parents too. An existing folder is not an error.
    virtual bool createDirectory(std::string_view path) = 0;
    // Creates an empty file, or empties an existing one. Links are not followed.
    virtual bool createFile(std::string_view path) = 0;
    // Replaces the file at once: after a failure the old text is still there.
    virtual bool writeText(std::string_view path, std::string_view text) = 0;
};

class FileManager : public FileReader, public FileWriter {};

}  // namespace tarnwick
