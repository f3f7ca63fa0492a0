#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "zip/FolderTree.h"

namespace tarnwick {

// The exit statuses, as scripts know them.
enum class ZipStatus {
    Done = 0,
    OutOfMemory = 4,
    CannotRead = 11,
    NothingToDo = 12,
    CannotWrite = 14,
    CannotCreate = 15,
    SomeUnreadable = 18,
};

// What is printed, in the words of the system's zip. A reader that is gone is no reason to stop.
class ZipReport : public TreeReport {
public:
    explicit ZipReport(bool isQuiet) : isQuiet_(isQuiet) {}

    void addEntry(std::string_view name, bool isUpdate, std::uint64_t size,
                  std::uint64_t compressedSize, bool isDeflated);
    void warn(std::string_view message, std::string_view subject) override;
    // Warns of a file that is not in the archive though it should be.
    void skip(std::string_view message, std::string_view subject) override;
    void fail(std::string_view message, std::string_view subject);
    // Closes the list of what was read; the status of the whole.
    ZipStatus finish();

private:
    void print(const std::string& line, bool isProblem);

    const bool isQuiet_;
    std::uint64_t entries_ = 0;
    std::uint64_t skipped_ = 0;
};

}  // namespace tarnwick
