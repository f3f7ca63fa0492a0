#include "zip/Report.h"

#include <cstdio>

namespace tarnwick {

namespace {

std::string rate(std::uint64_t size, std::uint64_t compressedSize, bool isDeflated) {
    const double saved = isDeflated && size > 0
                             ? 1 - static_cast<double>(compressedSize) / static_cast<double>(size)
                             : 0;
    const int percent = static_cast<int>(100 * saved + 0.5);
    return (isDeflated ? "(deflated " : "(stored ") + std::to_string(percent) + "%)";
}

}  // namespace

void ZipReport::print(const std::string& line, bool isProblem) {
    std::FILE* const stream = isProblem && isQuiet_ ? stderr : stdout;
    if (isProblem || !isQuiet_)
        std::fputs((line + "\n").c_str(), stream);
}

void ZipReport::addEntry(std::string_view name, bool isUpdate, std::uint64_t size,
                         std::uint64_t compressedSize, bool isDeflated) {
    ++entries_;
    print((isUpdate ? "updating: " : "  adding: ") + std::string(name) + " " +
              rate(size, compressedSize, isDeflated),
          false);
}

void ZipReport::warn(std::string_view message, std::string_view subject) {
    print("\tzip warning: " + std::string(message) + ": " + std::string(subject), true);
}

void ZipReport::skip(std::string_view message, std::string_view subject) {
    ++skipped_;
    warn(message, subject);
}

void ZipReport::fail(std::string_view message, std::string_view subject) {
    std::fflush(stdout);
    std::fputs(
        ("\nzip error: " + std::string(message) + " (" + std::string(subject) + ")\n").c_str(),
        stderr);
}

ZipStatus ZipReport::finish() {
    if (skipped_ == 0)
        return ZipStatus::Done;
    print("\nzip warning: Not all files were readable\n  files/entries read:  " +
              std::to_string(entries_) + "  skipped:  " + std::to_string(skipped_),
          true);
    return ZipStatus::SomeUnreadable;
}

}  // namespace tarnwick
