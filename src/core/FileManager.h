#pragma once

#include <cstdint>
#include <ctime>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace tarnwick {

// The few file calls that operations make. Nothing throws and nothing is reported: a call answers
// yes or no, and most callers do not ask. Any thread. A seam, so that tests can give it another
// root or let it fail.
class FileManager {
public:
    virtual ~FileManager() = default;

    // Follows links: a dangling one does not exist. Says nothing of the kind of thing that is
    // there.
    virtual bool exists(std::string_view path) const = 0;
    // The names in a folder, in the file system's own order; none if it cannot be listed.
    virtual std::optional<std::vector<std::string>> list(std::string_view path) const = 0;
    // The whole text of a file; none unless it can be read and is valid UTF-8.
    virtual std::optional<std::string> readText(std::string_view path) const = 0;
    // The whole content of a file, whatever it is; none if it cannot be read.
    virtual std::optional<std::string> readData(std::string_view path) const = 0;
    // Bytes; 0 if the file cannot be looked at.
    virtual std::uint64_t fileSize(std::string_view path) const = 0;
    // When the file was last changed; none if it cannot be looked at.
    virtual std::optional<std::time_t> modificationTime(std::string_view path) const = 0;
    // Bytes of the file system that holds the path; 0 if it cannot be asked. Free means free to
    // users.
    virtual std::int64_t fileSystemSize(std::string_view path) const = 0;
    virtual std::int64_t fileSystemFreeSize(std::string_view path) const = 0;

    // Takes a folder with all that is in it. A failure may leave a part of it. Links are not
    // followed.
    virtual bool remove(std::string_view path) = 0;
    // Fails, with nothing changed, when the target exists.
    virtual bool copy(std::string_view from, std::string_view to) = 0;
    // Makes the folders between as well. A folder that is there is no failure.
    virtual bool createDirectory(std::string_view path) = 0;
    // Makes an empty file, or empties the one that is there.
    virtual bool createFile(std::string_view path) = 0;
    // Writes a file beside the target and renames it over: after a failure the old text stands.
    virtual bool writeText(std::string_view path, std::string_view text) = 0;
};

}  // namespace tarnwick
